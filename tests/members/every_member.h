#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "QELPROEngine/QELPROEngine.h"

/// Every section member of the public headers, to be called without knowing its arguments. The list
/// is made from the headers when the tests are built.
namespace qelpro_test {

using Value = std::variant<int, double, std::string>;

/// What a section member takes, in order: a letter each for an integer (i), a real (d) and a text
/// (t), as output of a reader or input of a writer; a capital for what a reader is given, such as
/// the number of a stage.
struct MemberShape {
  std::string name;
  std::string arguments;
};

struct ReaderMember : MemberShape {
  /// Sets the outputs among the values, which are as many as the arguments; yields what the member
  /// yields.
  std::function<bool(CQELPROReader_Manipulator&, std::vector<Value>&)> read;
};

struct WriterMember : MemberShape {
  std::function<bool(CQELPROWriter_Manipulator&, std::vector<Value>)> write;
};

const std::vector<ReaderMember>& reader_members();
const std::vector<WriterMember>& writer_members();

/// The values that a member begins with: its integers the given numbers in order, from the first
/// again when they run out.
std::vector<Value> values_for(const MemberShape& member, const std::vector<int>& numbers,
                              const std::string& text);

/// How many integers a reader member is given.
std::size_t numbers_given(const ReaderMember& member);

/// All sets of numbers from 1 to `most` for a reader member.
std::vector<std::vector<int>> number_sets(const ReaderMember& member, int most);

}  // namespace qelpro_test
