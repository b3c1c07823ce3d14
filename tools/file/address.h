#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qelpro {

/// Where an entry stands: the section's name without brackets, and the key. A line that has a
/// position and no key has the key "#3": the third one behind its header.
struct Address {
  std::string section;
  std::string key;

  bool operator==(const Address&) const = default;
};

/// "SECTION.KEY"
std::string text_of(const Address& address);

/// A section's name without its brackets, and with them.
std::string_view without_brackets(std::string_view name);
std::string with_brackets(std::string_view name);

/// The position that the key "#3" stands for; 0 for any other key.
int position_of(std::string_view key);

/// What a user asks for: one entry, or the entries that a pattern matches.
struct Request {
  std::string argument;  ///< As it was given; SECTION and KEY of a pair with a dot between.
  std::vector<Address> addresses;  ///< What an address may mean, as its dots can be read.
  bool is_pair = false;
  /// Whether "*", "?" or "[...]" is in it. Names hold such characters, too: an entry that has the
  /// very name is meant first.
  bool is_pattern = false;
};

/// Reads the words of a command line: "SECTION.KEY", or SECTION and KEY in two words, of which the
/// first has no dot or begins with "[". A word with pattern characters and no dot is a pattern. A
/// `Failure` of usage where a section is without its key.
std::vector<Request> requests_of(const std::vector<std::string>& words);

/// A section, with both brackets or none, and a key that were given in two words. A `Failure` of
/// usage where they are no names.
Request request_of(const std::string& section, const std::string& key);

/// Whether a pattern matches the whole of a text: "*" any characters, "?" one, "[a-z]" and "[!a-z]"
/// one of a set; a bracket that is never closed stands for itself.
bool matches_pattern(std::string_view pattern, std::string_view text);
bool has_pattern_characters(std::string_view text);

}  // namespace qelpro
