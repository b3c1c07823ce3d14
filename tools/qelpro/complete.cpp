#include "complete.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string_view>

#include "file/known_addresses.h"
#include "output.h"
#include "system/failure.h"
#include "system/files.h"

namespace qelpro {
namespace {

using Words = std::vector<std::string>;

/// What an argument is, as its name tells.
enum class Kind { nothing, file, section, address, assignment, profile };

Kind kind_of(std::string_view name) {
  const auto has = [name](std::string_view word) {
    return name.find(word) != std::string_view::npos;
  };
  if (has("PROFILE")) {
    return Kind::profile;
  }
  if (has("ADDRESS=")) {
    return Kind::assignment;
  }
  if (has("ADDRESS") || has("PATTERN") || has("[.KEY]") || has("SECTION.KEY")) {
    return Kind::address;
  }
  if (has("SECTION")) {
    return Kind::section;
  }
  const bool is_file = has("FILE") || has("OUT") || has("FOLDER") || has("JSON") || has("DIR") ||
                       name == "A" || name == "B";
  return is_file ? Kind::file : Kind::nothing;
}

// The words that a validator lets through: "WHEN:{auto,always,never}".
Words choices_of(const CLI::Option& option) {
  Words choices;
  const std::string type = option.get_type_name();
  const std::size_t open = type.find('{');
  const std::size_t close = type.find('}', open == std::string::npos ? 0 : open);
  if (open != std::string::npos && close != std::string::npos) {
    for (std::size_t at = open + 1; at < close;) {
      const std::size_t end = std::min(type.find(',', at), close);
      choices.push_back(type.substr(at, end - at));
      at = end + 1;
    }
  }
  return choices;
}

bool takes_value(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

bool is_section_of_pair(const std::string& word, bool with_value) {
  const std::string name = with_value ? word.substr(0, word.find('=')) : word;
  return word.starts_with('[') || name.find_first_of(".*?") == std::string::npos;
}

/// The line as far as it is written.
class Line {
 public:
  Line(const CLI::App& command, std::span<const std::string> words) : command_(command) {
    for (const std::string& word : words) {
      add(word);
    }
  }

  /// What may stand there; nothing where a file does.
  [[nodiscard]] std::optional<Words> candidates(const std::string& begun) const {
    if (pending_ != nullptr) {
      return values(*pending_, pending_->get_type_name(), begun);
    }
    if (!only_positionals_ && begun.starts_with('-') && begun != "-") {
      return options(begun);
    }
    if (!only_positionals_ && begun == "-") {
      return options("--");
    }
    const CLI::Option* const positional = positional_at(positionals_.size());
    return positional == nullptr ? Words() : values(*positional, positional->get_name(), begun);
  }

 private:
  void add(const std::string& word) {
    if (pending_ != nullptr) {
      pending_ = nullptr;
      return;
    }
    if (only_positionals_ || !word.starts_with('-') || word == "-") {
      positionals_.push_back(word);
      return;
    }
    only_positionals_ = word == "--";
    const std::size_t equals = word.find('=');
    const CLI::Option* const option = command_.get_option_no_throw(word.substr(0, equals));
    if (option != nullptr) {
      given_.insert(option);
      pending_ = takes_value(*option) && equals == std::string::npos ? option : nullptr;
    }
  }

  [[nodiscard]] const CLI::Option* positional_at(std::size_t at) const {
    const CLI::Option* last = nullptr;
    for (const CLI::Option* option : command_.get_options()) {
      if (option->get_positional()) {
        last = option;
        if (at-- == 0) {
          return option;
        }
      }
    }
    return last != nullptr && last->get_items_expected_max() > 1 ? last : nullptr;
  }

  [[nodiscard]] std::optional<Words> options(const std::string& begun) const {
    if (const std::size_t equals = begun.find('='); equals != std::string::npos) {
      const CLI::Option* const option = command_.get_option_no_throw(begun.substr(0, equals));
      if (option == nullptr || !takes_value(*option)) {
        return Words();
      }
      std::optional<Words> found =
          values(*option, option->get_type_name(), begun.substr(equals + 1));
      if (found) {
        for (std::string& value : *found) {
          value.insert(0, begun.substr(0, equals + 1));
        }
      }
      return found;
    }
    Words names;
    for (const CLI::Option* option : command_.get_options()) {
      if (given_.contains(option) && option->get_items_expected_max() <= 1) {
        continue;
      }
      for (const std::string& name : option->get_lnames()) {
        names.push_back("--" + name);
      }
      if (!begun.starts_with("--")) {
        for (const std::string& name : option->get_snames()) {
          names.push_back("-" + name);
        }
      }
    }
    return names;
  }

  [[nodiscard]] std::optional<Words> values(const CLI::Option& option, const std::string& name,
                                            const std::string& begun) const {
    if (Words choices = choices_of(option); !choices.empty()) {
      return choices;
    }
    const Kind kind = kind_of(name);
    if (kind == Kind::file) {
      return std::nullopt;
    }
    if (kind == Kind::nothing) {
      return Words();
    }
    const std::unique_ptr<SectionedText> document = load();
    const std::unique_ptr<Entries> entries =
        document == nullptr ? nullptr : std::make_unique<Entries>(*document);
    const KnownNames names(entries.get(), entries == nullptr || kind == Kind::assignment);
    if (kind == Kind::profile) {
      return names.profiles();
    }
    return option.get_positional() ? of_names(names, kind, begun) : addresses(names, kind, begun);
  }

  // The file that stands first on the line, where there is one.
  [[nodiscard]] std::unique_ptr<SectionedText> load() const {
    const CLI::Option* const first = positional_at(0);
    if (positionals_.empty() || positionals_[0] == "-" || first == nullptr ||
        kind_of(first->get_name()) != Kind::file) {
      return nullptr;
    }
    try {
      return std::make_unique<SectionedText>(read_file(positionals_[0]));
    } catch (const Failure&) {
      return nullptr;
    }
  }

  // Addresses are words, and pairs of a section and a key.
  [[nodiscard]] Words of_names(const KnownNames& names, Kind kind, const std::string& begun) const {
    const bool is_assignment = kind == Kind::assignment;
    std::size_t at = std::min<std::size_t>(1, positionals_.size());
    while (kind != Kind::section && at < positionals_.size()) {
      const bool is_pair = is_section_of_pair(positionals_[at], is_assignment);
      const std::size_t rest = positionals_.size() - at;
      if (is_pair && rest == 1) {
        return names.keys(std::string(without_brackets(positionals_[at])));
      }
      if (is_pair && is_assignment && rest == 2) {
        return names.values(
            {std::string(without_brackets(positionals_[at])), positionals_[at + 1]});
      }
      at += !is_pair ? 1 : is_assignment ? 3 : 2;
    }
    return addresses(names, kind, begun);
  }

  [[nodiscard]] static Words addresses(const KnownNames& names, Kind kind,
                                       const std::string& begun) {
    Words found;
    const std::string behind = kind == Kind::section ? "" : ".";
    if (begun.starts_with('[')) {
      for (const std::string& section : names.sections()) {
        found.push_back(with_brackets(section));
      }
      return found;
    }
    const std::size_t equals = begun.find('=');
    Words sections = names.sections();
    // One that nobody offers, such as "Flow-7", has keys all the same.
    const std::string named = begun.substr(0, begun.find('.'));
    if (named.size() < begun.size() && std::ranges::find(sections, named) == sections.end()) {
      sections.push_back(named);
    }
    for (const std::string& section : sections) {
      if (kind == Kind::section || !begun.starts_with(section + ".")) {
        found.push_back(section + behind);
        continue;
      }
      for (const std::string& key : names.keys(section)) {
        const std::string address = text_of(Address{section, key});
        if (kind != Kind::assignment) {
          found.push_back(address);
        } else if (equals == std::string::npos) {
          found.push_back(address + "=");
        } else if (begun.substr(0, equals) == address) {
          for (const std::string& value : names.values({section, key})) {
            found.push_back(begun.substr(0, equals + 1) + value);
          }
        }
      }
    }
    return found;
  }

  const CLI::App& command_;
  Words positionals_;
  std::set<const CLI::Option*> given_;
  const CLI::Option* pending_ = nullptr;  // an option whose value comes next
  bool only_positionals_ = false;
};

Words names_of_commands(const CLI::App& app) {
  Words names;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    names.push_back(command->get_name());
  }
  return names;
}

std::optional<Words> candidates(const CLI::App& app, std::span<const std::string> words) {
  const std::string& begun = words.back();
  if (words.size() == 1) {
    return begun.starts_with('-') ? Line(app, {}).candidates(begun) : names_of_commands(app);
  }
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    if (command->get_name() == words.front()) {
      return Line(*command, words.subspan(1, words.size() - 2)).candidates(begun);
    }
  }
  return Words();
}

}  // namespace

int complete(const CLI::App& app, const std::vector<std::string>& words) {
  if (words.empty()) {
    return kDone;
  }
  const std::optional<Words> found = candidates(app, words);
  if (!found) {
    return kNotFound;
  }
  for (const std::string& candidate : *found) {
    if (candidate.starts_with(words.back()) &&
        candidate.find_first_of("\r\n") == std::string::npos) {
      answer() << candidate << "\n";
    }
  }
  return kDone;
}

}  // namespace qelpro
