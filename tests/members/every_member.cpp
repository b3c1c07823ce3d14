#include "members/every_member.h"

#include <algorithm>
#include <tuple>
#include <type_traits>
#include <utility>

namespace qelpro_test {
namespace {

// What stands for one argument during a call.
template <class Argument>
struct Passed {
  using Plain = std::remove_reference_t<Argument>;
  static constexpr bool kOutput = std::is_reference_v<Argument>;
  static constexpr char kLetter = std::is_same_v<Plain, int> ? 'i' : 'd';
  explicit Passed(Value& of) : value(std::get<Plain>(of)) {}
  Plain& pass() { return value; }
  void give_back(Value& to) const { to = value; }
  Plain value;
};

template <class Character>
struct PassedText {
  static constexpr char kLetter = 't';
  explicit PassedText(Value& of) : text(std::get<std::string>(of)) {}
  Character*& pass() {
    value = text.data();
    return value;
  }
  void give_back(Value& to) const {
    if (value != nullptr) {
      to = std::string(value);
    }
  }
  std::string text;
  Character* value = nullptr;
};
template <>
struct Passed<char*&> : PassedText<char> {
  using PassedText::PassedText;
  static constexpr bool kOutput = true;
};
template <>
struct Passed<char*> : PassedText<char> {
  using PassedText::PassedText;
  static constexpr bool kOutput = false;
};
template <>
struct Passed<const char*> : PassedText<const char> {
  using PassedText::PassedText;
  static constexpr bool kOutput = false;
};

template <class Object, class... Arguments>
bool call(Object& object, bool (Object::*member)(Arguments...), std::vector<Value>& values) {
  return [&]<std::size_t... index>(std::index_sequence<index...>) {
    std::tuple<Passed<Arguments>...> passed{Passed<Arguments>(values[index])...};
    const bool done = (object.*member)(std::get<index>(passed).pass()...);
    if (done) {
      ((Passed<Arguments>::kOutput ? std::get<index>(passed).give_back(values[index]) : void()),
       ...);
    }
    return done;
  }
  (std::index_sequence_for<Arguments...>());
}

template <class... Arguments>
struct With {
  static std::string reader_letters() {
    return {static_cast<char>(Passed<Arguments>::kOutput
                                  ? Passed<Arguments>::kLetter
                                  : Passed<Arguments>::kLetter + 'A' - 'a')...};
  }
  static std::string writer_letters() { return {Passed<Arguments>::kLetter...}; }

  static ReaderMember reader_member(const char* name,
                                    bool (CQELPROReader_Manipulator::*member)(Arguments...)) {
    return {{name, reader_letters()},
            [member](CQELPROReader_Manipulator& reader, std::vector<Value>& values) {
              return call(reader, member, values);
            }};
  }
  static WriterMember writer_member(const char* name,
                                    bool (CQELPROWriter_Manipulator::*member)(Arguments...)) {
    return {{name, writer_letters()},
            [member](CQELPROWriter_Manipulator& writer, std::vector<Value> values) {
              return call(writer, member, values);
            }};
  }
};

}  // namespace

const std::vector<ReaderMember>& reader_members() {
#define MEMBER(name, ...) With<__VA_ARGS__>::reader_member(#name, &CQELPROReader_Manipulator::name),
  static const std::vector<ReaderMember> members = {
#include "Reader_members.inc"
  };
#undef MEMBER
  return members;
}

const std::vector<WriterMember>& writer_members() {
#define MEMBER(name, ...) With<__VA_ARGS__>::writer_member(#name, &CQELPROWriter_Manipulator::name),
  static const std::vector<WriterMember> members = {
#include "Writer_members.inc"
  };
#undef MEMBER
  return members;
}

std::vector<Value> values_for(const MemberShape& member, const std::vector<int>& numbers,
                              const std::string& text) {
  std::vector<Value> values;
  std::size_t next = 0;
  for (const char letter : member.arguments) {
    switch (letter) {
      case 'I':
      case 'i':
        values.emplace_back(letter == 'I' && !numbers.empty() ? numbers[next++ % numbers.size()]
                                                              : 0);
        break;
      case 'd':
      case 'D':
        values.emplace_back(0.0);
        break;
      default:
        values.emplace_back(text);
        break;
    }
  }
  return values;
}

std::size_t numbers_given(const ReaderMember& member) {
  return static_cast<std::size_t>(
      std::count(member.arguments.begin(), member.arguments.end(), 'I'));
}

std::vector<std::vector<int>> number_sets(const ReaderMember& member, int most) {
  std::vector<std::vector<int>> sets = {{}};
  for (std::size_t given = numbers_given(member); given > 0; --given) {
    std::vector<std::vector<int>> longer;
    for (const std::vector<int>& set : sets) {
      for (int number = 1; number <= most; ++number) {
        longer.push_back(set);
        longer.back().push_back(number);
      }
    }
    sets = std::move(longer);
  }
  return sets;
}

}  // namespace qelpro_test
