#include "members.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <vector>

#include "blocks/catalogue.h"
#include "lines.h"

namespace {

constexpr std::string_view kBegin =
    "  // The members of the sections, made by \"./dev generate\" from the rows of src/blocks.\n"
    "  // clang-format off\n";
constexpr std::string_view kEnd =
    "  // clang-format on\n"
    "  // The members above are made; what follows is written by hand.\n";

using Words = std::vector<std::string>;

/// One parameter of a member: its declaration's parts, and how the description tells it.
struct Parameter {
  std::string type;
  std::string name;
  std::string words;
};

struct Member {
  std::string name;
  const qel::SectionInfo* section;
  const qel::KeyInfo* key;
  bool writes;
  std::vector<Parameter> parameters;  ///< Those of the fields first.
  std::size_t fields = 0;             ///< How many of them are fields of the value.
};

std::string type_of(qel::Kind kind, bool writes) {
  switch (kind) {
    case qel::Kind::integer:
      return writes ? "int " : "int& ";
    case qel::Kind::real:
      return writes ? "double " : "double& ";
    default:
      return writes ? "char* " : "char*& ";
  }
}

Member member_of(const std::string& name, const qel::SectionInfo& section, const qel::KeyInfo& key,
                 bool writes) {
  Member member{name, &section, &key, writes, {}, 0};
  const auto fields = writes ? key.encoding->written : key.encoding->read;
  member.fields = fields.size();
  for (const qel::FieldArgument& field : fields) {
    member.parameters.push_back({type_of(field.kind, writes), field.name, field.words});
  }
  for (const qel::Argument& number :
       {qel::is_numbered(key.text) ? key.details.number : qel::Argument(),
        qel::is_numbered(section.name) ? section.number : qel::Argument()}) {
    if (number.name != nullptr) {
      member.parameters.push_back({"int ", number.name, number.words});
    }
  }
  const qel::Argument& unused = key.details.unused;
  if (unused.name != nullptr) {
    member.parameters.push_back({"int ", unused.name, unused.words});
  }
  return member;
}

// What the header declares by hand: all of it but the made region.
std::string without_region(const std::string& header, std::size_t& begin, std::size_t& end) {
  begin = header.find(kBegin);
  end = header.find(kEnd);
  if (begin == std::string::npos || end == std::string::npos) {
    throw std::runtime_error("a header without the region of the made members");
  }
  end += kEnd.size();
  return header.substr(0, begin) + header.substr(end);
}

std::vector<Member> members_of(const ExportedObject& object, const std::string& by_hand) {
  std::vector<Member> members;
  for (const qel::SectionInfo* section : qel::Catalogue()) {
    for (const qel::KeyInfo& key : section->keys) {
      for (const char* name : object.writes ? key.writers : key.readers) {
        if (name != nullptr && by_hand.find(" " + std::string(name) + "(") == std::string::npos) {
          members.push_back(member_of(name, *section, key, object.writes));
        }
      }
    }
  }
  return members;
}

std::string declared(const Parameter& parameter) { return parameter.type + parameter.name; }

// "head(a, b)tail" with lines broken after commas where it is too long.
std::string call(const std::string& head, const Words& arguments, const std::string& tail,
                 const std::string& indent) {
  std::string line = head + "(";
  for (const std::string& argument : arguments) {
    line += (argument == arguments.front() ? "" : ", ") + argument;
  }
  line += ")" + tail;
  if (line.size() <= kColumns) {
    return line + "\n";
  }
  std::string result = head + "(\n";
  line = indent;
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    const bool last = index + 1 == arguments.size();
    const std::string piece = arguments[index] + (last ? ")" + tail : ",");
    if (line != indent && line.size() + 1 + piece.size() > kColumns) {
      result += line + "\n";
      line = indent;
    }
    line += (line == indent ? "" : " ") + piece;
  }
  return result + line + "\n";
}

Words declarations_of(const Member& member) {
  Words words;
  for (const Parameter& parameter : member.parameters) {
    words.push_back(declared(parameter));
  }
  return words;
}

bool is_text(const Parameter& parameter) { return parameter.type.substr(0, 4) == "char"; }

std::string arguments_told(const Member& member) {
  std::string told;
  std::string last;
  for (const Parameter& parameter : member.parameters) {
    if (parameter.words != last) {
      told += (told.empty() ? "" : ", ") + parameter.words;
      last = parameter.words;
    }
  }
  return (member.parameters.size() > 1 ? "Arguments: " : "Argument: ") + told + ".";
}

std::string failure_told(const Member& member) {
  if (member.writes) {
    return " False: not stored, the file unchanged.";
  }
  return std::string(" False, ") +
         (member.fields == 1 ? member.parameters.front().words : std::string("outputs")) +
         " untouched: not in the file.";
}

std::string validity_told(const Member& member) {
  const auto end = member.parameters.begin() + static_cast<std::ptrdiff_t>(member.fields);
  const auto text = std::find_if(member.parameters.begin(), end, is_text);
  if (member.writes || text == end) {
    return {};
  }
  return member.fields == 1 ? " The text is valid until the thread's next read."
                            : " The name is valid until the next read of its kind.";
}

std::string title(const Member& member) {
  return std::string(member.section->name) + " \"" + member.key->text + "\"";
}

// What there is to know beside what the value is, each sentence once.
std::string notes_told(const Member& member) {
  const qel::KeyInfo& key = *member.key;
  std::string told;
  for (const char* note :
       {key.details.unused.name != nullptr ? "Every index addresses the one entry." : "",
        member.writes ? key.details.writing : key.details.reading,
        member.writes ? key.encoding->writing : key.encoding->reading}) {
    told += *note != '\0' ? std::string(" ") + note : std::string();
  }
  return told;
}

std::string description(const Member& member) {
  return title(member) + ": " + member.key->meaning + "." + notes_told(member) + " " +
         arguments_told(member) + validity_told(member) + failure_told(member);
}

// The form for a constant text, beside a member that takes `char*`.
std::string constant_form(const Member& member) {
  std::string result =
      wrapped(title(member) + ", from a text that is constant, such as a literal: the same member.",
              "  ///");
  result += "  template <class Char>\n";
  Words parameters;
  Words arguments;
  for (const Parameter& parameter : member.parameters) {
    parameters.push_back(is_text(parameter) ? "Char* " + parameter.name : declared(parameter));
    arguments.push_back(is_text(parameter) ? "const_cast<char*>(" + parameter.name + ")"
                                           : parameter.name);
  }
  result += call("  qel::IfConstant<Char> " + member.name, parameters, " {", "      ");
  return result + call("    return " + member.name, arguments, ";", "        ") + "  }\n";
}

bool takes_text(const Member& member) {
  return member.writes && std::any_of(member.parameters.begin(), member.parameters.end(), is_text);
}

std::string place_of(const Member& member) {
  const bool point = qel::is_numbered(member.key->text);
  const bool section = qel::is_numbered(member.section->name);
  const auto number = member.parameters.begin() + static_cast<std::ptrdiff_t>(member.fields);
  if (point && section) {
    return "at_point(" + number->name + ", " + (number + 1)->name + ")";
  }
  if (point) {
    return "at_point(" + number->name + ")";
  }
  return section ? "in_section(" + number->name + ")" : "{}";
}

std::string definition(const ExportedObject& object, const Member& member) {
  Words parameters = declarations_of(member);
  if (member.key->details.unused.name != nullptr) {
    parameters.back() = "int /*" + member.parameters.back().name + "*/";
  }
  Words arguments{"session_", "\"" + std::string(member.key->text) + "\"", place_of(member)};
  for (std::size_t index = 0; index < member.fields; ++index) {
    arguments.push_back(member.parameters[index].name);
  }
  return call("bool " + std::string(object.name) + "::" + member.name, parameters, " {", "    ") +
         call(std::string("  return ") + (member.writes ? "write" : "read") + "<CQELPROBlockIO" +
                  member.section->block + ", " + std::string(member.key->encoding->type) + ">",
              arguments, ";", "      ") +
         "}\n";
}

}  // namespace

std::string with_declarations(const ExportedObject& object, const std::string& header) {
  std::size_t begin = 0;
  std::size_t end = 0;
  const std::string by_hand = without_region(header, begin, end);
  std::string region(kBegin);
  const qel::SectionInfo* section = nullptr;
  for (const Member& member : members_of(object, by_hand)) {
    if (member.section != section) {
      section = member.section;
      region +=
          "\n" + wrapped(std::string(section->name) + ": " + section->subject + ".", "  //") + "\n";
    }
    region += wrapped(description(member), "  ///") +
              call("  bool " + member.name, declarations_of(member), ";", "      ");
    if (takes_text(member)) {
      region += constant_form(member);
    }
  }
  region += "\n" + std::string(kEnd);
  return header.substr(0, begin) + region + header.substr(end);
}

std::string definitions(const ExportedObject& object, const std::string& header) {
  std::size_t begin = 0;
  std::size_t end = 0;
  const std::string by_hand = without_region(header, begin, end);
  std::string result =
      "// Made by \"./dev generate\" from the rows of src/blocks.\n// clang-format off\n\n"
      "#include \"api/members.h\"\n\nusing namespace qel;\n";
  const qel::SectionInfo* section = nullptr;
  for (const Member& member : members_of(object, by_hand)) {
    if (member.section != section) {
      section = member.section;
      result += "\n// " + std::string(section->name) + "\n";
    }
    result += "\n" + definition(object, member);
  }
  return result;
}
