#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "QELPROEngine/QELPROEngine.h"

/// Section members as rows of a table. A section's test file lists its members, each with the entry
/// that it reads or writes, and instantiates the behaviours that all section members share:
///
///     INSTANTIATE_TEST_SUITE_P(FlowX, SectionReader, testing::Values(
///         reads(READER(FlowX_ReadFillingTime), "[Flow-2]", "FillTime", "1.5", 1.5, 2),
///         reads(READER(FlowX_ReadFRProfile), "[Flow-2]", "FR-3", "0.5\t30", 0.5, 30.0, 3, 2)),
///         name_of_row);
///
/// The values after the entry stand for the member's arguments, in order: what an output is to be,
/// or which number is passed. Of a member with overloads one is chosen by
/// `Taking<int&>::of(&CQELPROReader_Manipulator::X)`.
namespace qelpro_test {

using Reader = CQELPROReader_Manipulator;
using Writer = CQELPROWriter_Manipulator;

/// The writer's members by their exact types, which tell them from the forms for constant texts;
/// the list is made from the header when the tests are built. Members with overloads are not among
/// them.
namespace writer_members {
#define MEMBER(name, ...) inline constexpr bool (Writer::*name)(__VA_ARGS__) = &Writer::name;
#include "Writer_single_members.inc"
#undef MEMBER
}  // namespace writer_members

#define READER(member) #member, &CQELPROReader_Manipulator::member
#define WRITER(member) #member, writer_members::member

template <class... Arguments>
struct Taking {
  static constexpr auto of(bool (Reader::*member)(Arguments...)) { return member; }
  static constexpr auto of(bool (Writer::*member)(Arguments...)) { return member; }
};

/// What an entry whose text holds no number leaves in the outputs; a text is never unscannable.
enum class Unscanned { kept, zero, any };

struct ReaderRow {
  enum class Outcome { read, untouched, zero, any };

  std::string member;
  std::string section;
  std::string key;
  std::string text;
  Unscanned unscanned;
  /// Calls the member and looks at its outputs; yields what the member yields.
  std::function<bool(Reader&, Outcome)> call;
};

struct WriterRow {
  enum class Given { values, null_texts, broken_texts, overlong_texts };

  std::string member;
  std::string section;
  std::string key;
  std::string text;
  bool takes_text;
  std::function<bool(Writer&, Given)> call;
};

/// One argument of a call: what the caller passes, and what is to stand there after the member
/// succeeded.
template <class Argument>
class Slot;

template <>
class Slot<int&> {
 public:
  explicit Slot(int expected) : expected_(expected) {}
  int& pass() { return value_; }
  void expect_read() const { EXPECT_EQ(value_, expected_); }
  void expect_untouched() const { EXPECT_EQ(value_, kBefore); }
  void expect_zero() const { EXPECT_EQ(value_, 0); }

 private:
  static constexpr int kBefore = -777001;
  int expected_;
  int value_ = kBefore;
};

template <>
class Slot<double&> {
 public:
  explicit Slot(double expected) : expected_(expected) {}
  double& pass() { return value_; }
  void expect_read() const { EXPECT_EQ(value_, expected_); }
  void expect_untouched() const { EXPECT_EQ(value_, kBefore); }
  void expect_zero() const { EXPECT_EQ(value_, 0); }

 private:
  static constexpr double kBefore = -777.125;
  double expected_;
  double value_ = kBefore;
};

template <>
class Slot<char*&> {
 public:
  explicit Slot(std::string expected) : expected_(std::move(expected)) {}
  char*& pass() { return value_; }
  void expect_read() const { EXPECT_STREQ(value_, expected_.c_str()); }
  void expect_untouched() const { EXPECT_EQ(value_, before()); }
  void expect_zero() const { EXPECT_EQ(value_, nullptr); }

 private:
  static char* before() {
    static char text[] = "before";
    return text;
  }
  std::string expected_;
  char* value_ = before();
};

template <class Number>
requires std::is_arithmetic_v<Number>
class Slot<Number> {
 public:
  explicit Slot(Number value) : value_(value) {}
  Number pass() const { return value_; }
  Number pass(WriterRow::Given /*given*/) const { return value_; }
  void expect_read() const {}
  void expect_untouched() const {}
  void expect_zero() const {}
  static constexpr bool kIsText = false;

 private:
  Number value_;
};

template <class Character>
requires std::is_same_v < std::remove_const_t<Character>,
char > class Slot<Character*> {
 public:
  explicit Slot(std::string value) : value_(std::move(value)) {}
  Character* pass(WriterRow::Given given) {
    switch (given) {
      case WriterRow::Given::values:
        break;
      case WriterRow::Given::null_texts:
        return nullptr;
      case WriterRow::Given::broken_texts:
        value_ += "\nFillTime = 1";
        break;
      case WriterRow::Given::overlong_texts:
        value_.append(5000, 'x');
        break;
    }
    return value_.data();
  }
  void expect_read() const {}
  void expect_untouched() const {}
  void expect_zero() const {}
  static constexpr bool kIsText = true;

 private:
  std::string value_;
};

inline std::ostream& operator<<(std::ostream& out, const ReaderRow& row) {
  return out << row.member << " of " << row.section << ' ' << row.key;
}
inline std::ostream& operator<<(std::ostream& out, const WriterRow& row) {
  return out << row.member << " of " << row.section << ' ' << row.key;
}

template <class... Arguments, class... Values>
ReaderRow reads(std::string name, bool (Reader::*member)(Arguments...), std::string section,
                std::string key, std::string text, Values... values) {
  static_assert(sizeof...(Arguments) == sizeof...(Values),
                "one value for each argument of the member");
  constexpr bool has_text = (std::is_same_v<Arguments, char*&> || ...);
  const auto call = [member, values...](Reader& reader, ReaderRow::Outcome outcome) {
    std::tuple<Slot<Arguments>...> slots{Slot<Arguments>(values)...};
    const bool done =
        std::apply([&](auto&... slot) { return (reader.*member)(slot.pass()...); }, slots);
    std::apply(
        [outcome](const auto&... slot) {
          switch (outcome) {
            case ReaderRow::Outcome::read:
              (slot.expect_read(), ...);
              break;
            case ReaderRow::Outcome::untouched:
              (slot.expect_untouched(), ...);
              break;
            case ReaderRow::Outcome::zero:
              (slot.expect_zero(), ...);
              break;
            case ReaderRow::Outcome::any:
              break;
          }
        },
        slots);
    return done;
  };
  return {std::move(name),
          std::move(section),
          std::move(key),
          std::move(text),
          has_text ? Unscanned::any : Unscanned::kept,
          call};
}

/// For a member that sets its outputs to zero before it scans.
inline ReaderRow zeroing(ReaderRow row) {
  row.unscanned = Unscanned::zero;
  return row;
}

template <class... Arguments, class... Values>
WriterRow writes(std::string name, bool (Writer::*member)(Arguments...), std::string section,
                 std::string key, std::string text, Values... values) {
  static_assert(sizeof...(Arguments) == sizeof...(Values),
                "one value for each argument of the member");
  const auto call = [member, values...](Writer& writer, WriterRow::Given given) {
    std::tuple<Slot<Arguments>...> slots{Slot<Arguments>(values)...};
    return std::apply([&](auto&... slot) { return (writer.*member)(slot.pass(given)...); }, slots);
  };
  constexpr bool takes_text = (Slot<Arguments>::kIsText || ...);
  return {std::move(name), std::move(section), std::move(key), std::move(text), takes_text, call};
}

/// The behaviours of every section member; tests/api/reader_writer/section_members_test.cpp holds
/// them.
class SectionReader : public testing::TestWithParam<ReaderRow> {};
class SectionWriter : public testing::TestWithParam<WriterRow> {};

struct NameOfRow {
  template <class Row>
  std::string operator()(const testing::TestParamInfo<Row>& info) const {
    return info.param.member + "_" + std::to_string(info.index);
  }
};
inline constexpr NameOfRow name_of_row;

/// An entry as a new key is written: the key padded to 20 columns.
inline std::string padded(const std::string& key, const std::string& text) {
  constexpr std::size_t kColumns = 20;
  return key + std::string(key.size() < kColumns ? kColumns - key.size() : 0, ' ') + " = " + text;
}

}  // namespace qelpro_test
