#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

/// Files as the tool reads and replaces them. Whatever fails is a `Failure` that names the file and
/// has the operating system's reason.
namespace qelpro {

/// Why a file is not replaced that other programs store into without an end.
inline constexpr const char* kIsBusy = "cannot be written: another program is storing into it";

/// The bytes of a regular file, all of them; "-" is standard input.
std::string read_file(const std::string& file);

/// A file that is about to be replaced by new contents, whole or not at all. Symbolic links are
/// followed. While it lives, no other store works on the file, be it this tool's or the engine's: it
/// waits, a few seconds at most, as this one's constructor does.
class Replacement {
 public:
  explicit Replacement(const std::string& file);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  /// The file is what it was, and nothing stands beside it, unless `commit` came back.
  ~Replacement();

  [[nodiscard]] const std::string& old_contents() const { return old_contents_; }
  /// Writes the new contents into a file beside the old one, which has its mode, owner and
  /// attributes from its first byte, and gives its path.
  const std::string& write(std::string_view contents);
  /// Puts the file that was written into the place of the old one.
  void commit();

 private:
  struct Handles;
  std::string file_;    // as the caller names it
  std::string target_;  // where its symbolic links lead
  std::string temporary_;
  std::string old_contents_;
  std::unique_ptr<Handles> handles_;
};

/// A file that does not exist yet and is made whole or not at all.
class NewFile {
 public:
  /// Makes an empty file beside the place of the new one, in which there is room for so many bytes.
  NewFile(const std::string& file, std::size_t room);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  /// Nothing is left over unless `publish` came back.
  ~NewFile();

  [[nodiscard]] std::string& temporary_path() { return temporary_; }
  /// Gives the file its name. One of that name that is there, a symbolic link to nothing too, is
  /// left alone.
  void publish();

 private:
  struct Guard;
  std::unique_ptr<Guard> guard_;  // goes last: until then signals that end the program wait
  std::string file_;
  std::string temporary_;
};

/// Puts the contents into a file that does not exist yet, whole or not at all.
void write_new(const std::string& file, std::string_view contents);

/// Puts the contents into a file, whole or not at all: into a new one, or in the place of a regular
/// file that is there, which keeps its permissions, its owner and the links to it.
void write_whole(const std::string& file, std::string_view contents);

/// Whether there is something of that name, a link to nothing too.
bool exists(const std::string& file);

/// All that standard input gives.
std::string read_standard_input();

}  // namespace qelpro
