#include "system/failure.h"

#include <cstdio>
#include <system_error>

#include "system/streams.h"
#include "system/visible.h"

namespace qelpro {
namespace {

std::string without_zeros(std::string text) {
  for (std::size_t at = text.find('\0'); at != std::string::npos; at = text.find('\0', at)) {
    text.replace(at, 1, "\\x00");
  }
  return text;
}

}  // namespace

Failure::Failure(Status status, const std::string& message)
    : std::runtime_error(without_zeros(message)), status_(status) {}

SystemFailure::SystemFailure(const std::string& file, const std::string& what, int error)
    : Failure(kFileError, at(file, what)), file_(file), reason_(what), error_(error) {}

void refuse_usage(const std::string& what) { throw Failure(kUsage, what); }

std::string at(const Where& where, std::string_view what) {
  std::string text = where.file;
  if (where.line != 0) {
    text += ":" + std::to_string(where.line);
  }
  text += ":";
  if (!where.section.empty()) {
    text += " " + where.section;
    text += where.key.empty() ? ":" : " " + where.key + ":";
  }
  return text.append(" ").append(what);
}

std::string at(const std::string& file, std::string_view what) {
  return file + ": " + std::string(what);
}

void complain(std::string_view message) {
  while (!message.empty() && (message.back() == '\n' || message.back() == '\r')) {
    message.remove_suffix(1);
  }
  const Controls controls = is_terminal(stderr) ? Controls::all : Controls::line_breaks;
  const std::string line = "qelpro: " + visible(message, controls) + "\n";
  std::fwrite(line.data(), 1, line.size(), stderr);
}

std::string reason_of(int error) { return std::generic_category().message(error); }

}  // namespace qelpro
