#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "members/every_member.h"
#include "support/scratch.h"

// What holds for the section members as a whole: they are walked over, whatever their section is.

namespace qelpro_test {
namespace {

constexpr int kMostNumber = 12;

bool is_output(char letter) { return letter >= 'a'; }

std::string in_lower_case(std::string letters) {
  for (char& letter : letters) {
    letter = static_cast<char>(letter | 0x20);
  }
  return letters;
}

// The writer member that takes what a reader member gives; null where there is none.
const WriterMember* counterpart(const ReaderMember& reader) {
  std::string name = reader.name;
  name.replace(name.find("_Read"), 5, "_Write");
  for (const WriterMember& writer : writer_members()) {
    if (writer.name == name && writer.arguments == in_lower_case(reader.arguments)) {
      return &writer;
    }
  }
  return nullptr;
}

// Whether an overload of the member reads more of the same entry, which writing back what this one
// read would lose.
bool reads_less_than_another(const ReaderMember& member) {
  return std::any_of(
      reader_members().begin(), reader_members().end(), [&member](const ReaderMember& other) {
        return other.name == member.name && other.arguments.size() > member.arguments.size();
      });
}

struct Answer {
  const ReaderMember* member;
  std::vector<Value> values;
};

// All that the reader members find in a file.
std::vector<Answer> answers(const std::string& path) {
  std::vector<Answer> found;
  CQELPROReader_Manipulator reader;
  if (!reader.SetFilePath(path.c_str())) {
    return found;
  }
  for (const ReaderMember& member : reader_members()) {
    for (const std::vector<int>& numbers : number_sets(member, kMostNumber)) {
      std::vector<Value> values = values_for(member, numbers, "Group-1");
      if (member.read(reader, values)) {
        found.push_back({&member, values});
      }
    }
  }
  return found;
}

std::string text_of(const Answer& answer) {
  std::string text = answer.member->name;
  for (const Value& value : answer.values) {
    text +=
        std::visit([](const auto& plain) { return " " + testing::PrintToString(plain); }, value);
  }
  return text;
}

class ProcessFile : public testing::TestWithParam<const char*> {
 protected:
  Scratch scratch_;
};

TEST_P(ProcessFile, KeepsEveryValueThatIsWrittenBackIntoIt) {
  const std::string path = scratch_.file(bytes_of(data_path(GetParam())));
  const std::vector<Answer> before = answers(path);
  ASSERT_GT(before.size(), 50U);
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  int written = 0;
  for (const Answer& answer : before) {
    const WriterMember* member = counterpart(*answer.member);
    if (member != nullptr && !reads_less_than_another(*answer.member)) {
      EXPECT_TRUE(member->write(writer, answer.values)) << text_of(answer);
      ++written;
    }
  }
  EXPECT_GT(written, 50);
  const std::vector<Answer> after = answers(path);
  ASSERT_EQ(after.size(), before.size());
  for (std::size_t i = 0; i < before.size(); ++i) {
    EXPECT_EQ(text_of(after[i]), text_of(before[i]));
  }
}

TEST_P(ProcessFile, GivesEveryValueToAFileMadeOfTheWritersAlone) {
  const std::string path = scratch_.path("made.pro");
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  for (const Answer& answer : answers(data_path(GetParam()))) {
    const WriterMember* member = counterpart(*answer.member);
    if (member == nullptr) {
      continue;
    }
    ASSERT_TRUE(member->write(writer, answer.values)) << text_of(answer);
    CQELPROReader_Manipulator reader;
    ASSERT_TRUE(reader.SetFilePath(path.c_str()));
    Answer again = answer;
    for (std::size_t i = 0; i < again.values.size(); ++i) {
      if (is_output(again.member->arguments[i])) {
        again.values[i] = Value();
        std::visit([&](const auto& of) { again.values[i] = std::decay_t<decltype(of)>(); },
                   answer.values[i]);
      }
    }
    EXPECT_TRUE(answer.member->read(reader, again.values)) << text_of(answer);
    EXPECT_EQ(text_of(again), text_of(answer));
  }
}

INSTANTIATE_TEST_SUITE_P(Data, ProcessFile,
                         testing::Values("injection_two_inlets.pro", "transfer_molding_curing.pro",
                                         "co_injection_type_8.pro"));

// Files that no front end writes. Every member answers, soon, and leaves its outputs alone where it
// says no.
struct Hostile {
  const char* kind;
  std::string contents;
};

std::ostream& operator<<(std::ostream& out, const Hostile& file) { return out << file.kind; }

class HostileFile : public testing::TestWithParam<Hostile> {
 protected:
  Scratch scratch_;
};

std::string every_count_huge() {
  std::string text =
      "[Summary]\nTotalGateCTL = 2000000000\nTotalNodeEC = 2147483647\n[FlowCTLInfo]\nTotalInlet = "
      "-1\n";
  for (const char* section :
       {"[Flow-1]", "[Pack-1]", "[Cure-1]", "[Coolant]", "[Cool]", "[GateValve-1]", "[GasF-1]"}) {
    text += std::string(section) +
            "\nFRSet = 2147483647\nIPSet = -2147483648\nPPSet = 2147483647\nCPSet = "
            "99999999999999999999\nGCSet = 2000000000\n";
  }
  return text;
}

TEST_P(HostileFile, IsAnsweredByEveryReaderMember) {
  const std::string path = scratch_.file(GetParam().contents);
  CQELPROReader_Manipulator reader;
  ASSERT_TRUE(reader.SetFilePath(path.c_str()));
  for (const ReaderMember& member : reader_members()) {
    for (const std::vector<int>& numbers :
         {std::vector<int>{1}, {2147483647}, {-2147483647 - 1}, {0, 1}}) {
      const std::vector<Value> before = values_for(member, numbers, "Group-1");
      std::vector<Value> values = before;
      if (!member.read(reader, values)) {
        EXPECT_EQ(values, before) << member.name;
      }
    }
  }
}

TEST_P(HostileFile, IsWrittenByEveryWriterMemberOrLeftAlone) {
  const std::string path = scratch_.file(GetParam().contents);
  CQELPROWriter_Manipulator writer;
  ASSERT_TRUE(writer.SetFilePath(path.c_str()));
  for (const WriterMember& member : writer_members()) {
    const std::string before = bytes_of(path);
    std::vector<Value> values;
    for (const char letter : member.arguments) {
      values.push_back(letter == 'i'   ? Value(1)
                       : letter == 'd' ? Value(1.5)
                                       : Value(std::string("word")));
    }
    if (!member.write(writer, values)) {
      EXPECT_EQ(bytes_of(path), before) << member.name;
    }
  }
}

std::string with_nul_bytes() {
  using namespace std::string_literals;
  return "[Flow-1]\0\nFillTime = 1\0\n\0\0\0\n[Summary]\n\0TotalNodeEM = 1\n"s +
         std::string(5000, '\0') + "\n[Pack-1]\nPackTime\0 = 2\n"s;
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, HostileFile,
    testing::Values(
        Hostile{"Empty", std::string()}, Hostile{"OneLineBreak", std::string("\n")},
        Hostile{"OnlyBlanks", std::string(300, ' ')}, Hostile{"NulBytes", with_nul_bytes()},
        Hostile{"OneLongLine", std::string(100000, 'x')},
        Hostile{"LongHeader", "[" + std::string(9000, 'h') + "]\nx = 1\n"},
        Hostile{"LongEntry",
                "[Flow-1]\nFillTime = " + std::string(9000, '1') + "\n[Pack-1]\nPackTime = 2\n"},
        Hostile{"Brackets", std::string("[\n]\n[]\n[[]]\n[Flow-1\n[Flow-1]]\n[ Flow-1 ]\n")},
        Hostile{"Equals",
                std::string("=\n==\n= = =\n[Flow-1]\n=\nFillTime\nFillTime==\nFillTime = = 1\n")},
        Hostile{"CarriageReturns", std::string("\r\r\r\n[Flow-1]\r\r\nFillTime = 1\r\r\n\r")},
        Hostile{"HalfAByteOrderMark", std::string("\xEF\xBB[Flow-1]\nFillTime = 1\n")},
        Hostile{"HighBytes", std::string(700, '\xFF') + "\n[Flow-1]\nFillTime = \xFF\xFE\n"},
        Hostile{"HugeCounts", every_count_huge()}),
    [](const auto& row) { return row.param.kind; });

// The counts that the summary of the tests prints; the table in members_are_tested.sh says which
// member has which test.
TEST(EveryMember, IsCounted) {
  RecordProperty("reader_members", static_cast<int>(reader_members().size()));
  RecordProperty("writer_members", static_cast<int>(writer_members().size()));
  EXPECT_EQ(reader_members().size(), 284U);
  EXPECT_EQ(writer_members().size(), 236U);
}

}  // namespace
}  // namespace qelpro_test
