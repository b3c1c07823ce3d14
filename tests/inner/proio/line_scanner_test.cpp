#include "proio/line_scanner.h"

#include <gtest/gtest.h>

#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "inner/text/memory_file.h"
#include "proio/line_store.h"

namespace {

using namespace std::string_literals;
using qel::proio::Line;
using qel::proio::LineScanner;
using qelpro_test::MemoryFile;

constexpr std::string_view kSection = "[A-1]";

// Where the section begins, found by looking at every line.
std::optional<std::int64_t> by_every_line(const std::string& contents) {
  LineScanner lines{std::string_view(contents)};
  for (Line line; lines.next(line);) {
    if (qel::proio::is_match(line.text, kSection)) {
      return line.end;
    }
  }
  return std::nullopt;
}

std::optional<std::int64_t> behind_section(LineScanner& lines) {
  if (!qel::proio::seek_section(lines, kSection)) {
    return std::nullopt;
  }
  Line line;
  return lines.next(line) ? line.start : -1;
}

void expect_same(const std::string& contents) {
  std::optional<std::int64_t> expected = by_every_line(contents);
  if (expected == static_cast<std::int64_t>(contents.size())) {
    expected = -1;
  }
  LineScanner in_memory{std::string_view(contents)};
  EXPECT_EQ(behind_section(in_memory), expected);
  MemoryFile file(contents);
  LineScanner in_file(file);
  EXPECT_EQ(behind_section(in_file), expected);
}

TEST(SelfContainedScanner, PassesLinesWithoutASectionsName) {
  expect_same("[A-1]\nx = 1\n");
  expect_same("[A-1]");
  expect_same("x\n[A-1]\n");
  expect_same("x\r\n [A-1]\r\n[A-1] note\r\nx\r\n");
  expect_same("[A-11]\nx[A-1]\n[A-1]=\ny\n");
  expect_same("a\0[A-1]\nb\0\n[A-1]\0\nc"s);
  expect_same("\xEF\xBB\xBF[A-1]\nx\n");
  expect_same("");
}

TEST(SelfContainedScanner, FindsASectionInAPieceOfALongLine) {
  for (const std::size_t before : {126U, 127U, 128U, 254U, 255U}) {
    expect_same("x\n" + std::string(before, 'y') + "[A-1]\nz\n");
    expect_same("x\n[A-1" + std::string(before, 'y') + "[A-1]\nz\n");
  }
}

TEST(SelfContainedScanner, FindsASectionAtEveryPlaceOfABlock) {
  constexpr std::size_t kBlock = std::size_t{16} * 1024;
  for (std::size_t place = kBlock - 140; place < kBlock + 10; ++place) {
    const std::string before(place - 101, 'x');
    expect_same(before + "\n" + std::string(99, 'y') + "\n[A-1]\nz\n");
    expect_same(std::string(place, '\n') + "[A-1]\nz\n");
  }
}

TEST(SelfContainedScanner, AgreesWithALookAtEveryLine) {
  std::mt19937 random(1);
  constexpr std::string_view kPieces[] = {"[A-1]", "[A-1] ", "[A-1", "[",  "A-1]", "x = 1",
                                          "\n",    "\n",     "\r\n", "\r", " "};
  for (int round = 0; round < 3000; ++round) {
    std::string contents;
    for (int count = static_cast<int>(random() % 40); count > 0; --count) {
      if (random() % 12 == 0) {
        contents.append(random() % 300, 'y');
      } else if (random() % 40 == 0) {
        contents.push_back('\0');
      } else {
        contents.append(kPieces[random() % std::size(kPieces)]);
      }
    }
    expect_same(contents);
    ASSERT_FALSE(HasFailure()) << testing::PrintToString(contents);
  }
}

// To look for the name again in every piece would take hours.
TEST(SelfContainedScanner, LooksForANameOnceInALongLine) {
  const std::string contents = "x\n" + std::string(std::size_t{20} << 20U, 'y');
  LineScanner lines{std::string_view(contents)};
  EXPECT_FALSE(qel::proio::seek_section(lines, kSection));
}

TEST(SelfContainedScanner, TellsPaddingOfAnyLength) {
  for (const std::size_t blanks : {0U, 1U, 4094U, 4095U, 4096U, 4097U, 9000U}) {
    const std::string padding(blanks, ' ');
    for (const std::string& text : {""s, "x\n"s, "x"s, "\n"s, "x\n y"s}) {
      MemoryFile file(text + padding);
      const bool is_padded = !text.empty() && text.back() == '\n';
      EXPECT_EQ(qel::proio::length_without_padding(file),
                static_cast<std::int64_t>(text.size() + (is_padded ? 0 : blanks)))
          << testing::PrintToString(text) << ' ' << blanks;
      EXPECT_EQ(static_cast<std::int64_t>(
                    qel::proio::length_without_padding(std::string_view(file.bytes))),
                qel::proio::length_without_padding(file));
    }
  }
}

TEST(SelfContainedScanner, TellsNoPaddingOfAFileThatCannotBeRead) {
  MemoryFile file("x\n  ");
  file.readable = 2;
  EXPECT_EQ(qel::proio::length_without_padding(file), -1);
}

}  // namespace
