#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qel {

/// The pages of a file, at whose ends the operating system may stop writing when it is told to kill
/// the program. Larger ones are multiples of it.
inline constexpr std::size_t kPageSize = 4096;

/// Whole lines in the place of contents[begin, end), which are whole lines too, or none.
struct LineChange {
  std::string_view contents;  ///< Of the old file, without padding.
  std::size_t begin;
  std::size_t end;
  std::string_view lines;
};

/// What to write over the file, one text after the other, so that whoever finds the file after any
/// whole page of any of them reads every entry whole: its old value, or, of the lines that change,
/// the new one. The last text is the change itself.
struct PageSteps {
  std::size_t at = 0;              ///< Where each text goes.
  std::vector<std::string> texts;  ///< None where one write does, or where there is no such way.
  bool moves_all = false;          ///< Whether they reach to where the contents end.
};

/// A text in between has each line whole in one page. It takes the blanks around "=" and empty
/// lines for the room that this needs: a file with too few of them has no such way. Nor has a
/// change that moves a section whose lines are known by their position over the end of a page, or a
/// mebibyte.
PageSteps page_steps(const LineChange& change);

}  // namespace qel
