#include "support/run.h"

#include <sys/wait.h>

#include <cstdlib>

#include "support/scratch.h"

namespace qelpro_test {
namespace {

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text) {
    result += c == '\'' ? "'\\''" : std::string(1, c);
  }
  return result + "'";
}

}  // namespace

Outcome run(const std::string& program, const std::vector<std::string>& arguments) {
  const Scratch scratch;
  std::string command = quoted(program);
  for (const std::string& argument : arguments) {
    command.append(" ").append(quoted(argument));
  }
  command.append(" >")
      .append(quoted(scratch.path("out")))
      .append(" 2>")
      .append(quoted(scratch.path("err")))
      .append(" </dev/null");
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, bytes_of(scratch.path("out")),
          bytes_of(scratch.path("err"))};
}

}  // namespace qelpro_test
