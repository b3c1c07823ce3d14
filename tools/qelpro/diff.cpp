#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "color.h"
#include "commands.h"
#include "file/document_text.h"
#include "json/json_text.h"
#include "output.h"
#include "print_differences.h"
#include "system/failure.h"

namespace qelpro {

namespace {

// What git gives in the place of a file that one side does not have.
constexpr const char* kNoFile = "/dev/null";

SectionedText document_of(const std::string& file) {
  return file == kNoFile ? SectionedText("") : load_document(file);
}

void print_json(const std::vector<Difference>& differences) {
  for (std::size_t index = 0; index < differences.size(); ++index) {
    answer() << (index == 0 ? "[\n  " : ",\n  ");
    write_json(answer(), json_of(differences[index]), 2);
  }
  answer() << (differences.empty() ? "[]\n" : "\n]\n");
}

// Whether there is any.
bool compare(const DiffArguments& arguments, const std::string& before, const std::string& after) {
  const SectionedText old_document = document_of(before);
  const SectionedText new_document = document_of(after);
  const std::vector<Difference> found = differences(
      old_document, new_document, {arguments.relative, arguments.absolute, arguments.points});
  if (arguments.json) {
    print_json(found);
  } else {
    print_differences(found, Painter(arguments.color));
  }
  return !found.empty();
}

// The words with which git runs a diff of somebody else's: the path; file, object and mode before
// and after; and, of a file with another name, that name and what git says of it.
class GitWords {
 public:
  explicit GitWords(const std::vector<std::string>& words) : words_(words) {}

  [[nodiscard]] const std::string& before() const { return words_[1]; }
  [[nodiscard]] const std::string& after() const { return words_[4]; }

  [[nodiscard]] std::string header() const {
    const std::string& new_path = words_.size() > kPlain ? words_[kPlain] : words_[0];
    std::string text = "diff --qelpro a/" + words_[0] + " b/" + new_path + "\n";
    const std::string& old_mode = words_[3];
    const std::string& new_mode = words_[6];
    if (before() == kNoFile) {
      text += "new file mode " + new_mode + "\n";
    } else if (after() == kNoFile) {
      text += "deleted file mode " + old_mode + "\n";
    } else if (old_mode != new_mode) {
      text += "old mode " + old_mode + "\nnew mode " + new_mode + "\n";
    }
    if (words_.size() > kPlain + 1) {
      text += words_[kPlain + 1];
      text += text.ends_with('\n') ? "" : "\n";
    }
    return text;
  }

  static constexpr std::size_t kPlain = 7;
  static constexpr std::size_t kRenamed = 9;

 private:
  const std::vector<std::string>& words_;
};

// git takes any other status than 0 for a failure and stops before the files that are left; so a
// file that cannot be read is told, and no more.
int run_for_git(const DiffArguments& arguments) {
  const GitWords words(arguments.words);
  if (!arguments.json) {
    answer() << words.header();
  }
  try {
    if (!compare(arguments, words.before(), words.after()) && !arguments.json) {
      answer() << "(no entry differs)\n";
    }
  } catch (const Failure& failure) {
    complain(at(arguments.words.front(), failure.what()));
  }
  return kDone;
}

bool is_run_by_git() { return std::getenv("GIT_DIFF_PATH_COUNTER") != nullptr; }

void check_tolerance(const char* option, double value) {
  if (!(value >= 0) || std::isinf(value)) {
    throw Failure(kUsage, std::string("diff: ") + option + " is a number that is not negative");
  }
}

}  // namespace

int run_diff(const DiffArguments& arguments) {
  check_tolerance("--tolerance", arguments.relative);
  check_tolerance("--absolute", arguments.absolute);
  const std::vector<std::string>& files = arguments.words;
  if (files.size() == GitWords::kPlain || files.size() == GitWords::kRenamed) {
    return run_for_git(arguments);
  }
  if (files.size() == 1 && is_run_by_git()) {
    answer() << "* Unmerged path " << files.front() << '\n';
    return kDone;
  }
  if (files.size() != 2) {
    throw Failure(kUsage, files.size() < 2 ? "diff: B is missing; see qelpro diff --help"
                                           : "diff: \"" + files[2] +
                                                 "\" is one word too many; see qelpro diff --help");
  }
  if (files[0] == "-" && files[1] == "-") {
    throw Failure(kUsage, "diff: standard input can be one of the two files, not both");
  }
  return compare(arguments, files[0], files[1]) ? kNotFound : kDone;
}

}  // namespace qelpro
