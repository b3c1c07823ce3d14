#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "inner/text/memory_file.h"
#include "proio/dialect.h"
#include "proio/line_store.h"
#include "text/line_scanner.h"
#include "text/text.h"

namespace {

using namespace std::string_literals;
using qel::Line;
using qel::LineScanner;
using qel::proio::lines_of;
using qelpro_test::MemoryFile;

constexpr std::string_view kSection = "[A-1]";

// Where the section begins, found by looking at every line.
std::optional<std::int64_t> by_every_line(const std::string& contents) {
  LineScanner lines = lines_of(std::string_view(contents));
  for (Line line; lines.next(line);) {
    if (qel::text::first_token_is(line.text, kSection)) {
      return line.end;
    }
  }
  return std::nullopt;
}

std::optional<std::int64_t> after_section(LineScanner& lines) {
  if (!qel::proio::seek_section(lines, kSection)) {
    return std::nullopt;
  }
  Line line;
  return lines.next(line) ? line.start : -1;
}

void expect_same(const std::string& contents) {
  std::optional<std::int64_t> expected = by_every_line(contents);
  const std::size_t end = qel::text::length_without_padding(contents, qel::proio::kDialect);
  if (expected == static_cast<std::int64_t>(end)) {
    expected = -1;  // padding is no line
  }
  LineScanner in_memory = lines_of(std::string_view(contents));
  EXPECT_EQ(after_section(in_memory), expected);
  MemoryFile file(contents);
  LineScanner in_file = lines_of(file);
  EXPECT_EQ(after_section(in_file), expected);
}

TEST(SeekSection, PassesLinesWithoutASectionsName) {
  expect_same("[A-1]\nx = 1\n");
  expect_same("[A-1]");
  expect_same("x\n[A-1]\n");
  expect_same("x\r\n [A-1]\r\n[A-1] note\r\nx\r\n");
  expect_same("[A-11]\nx[A-1]\n[A-1]=\ny\n");
  expect_same("a\0[A-1]\nb\0\n[A-1]\0\nc"s);
  expect_same("\xEF\xBB\xBF[A-1]\nx\n");
  expect_same("");
}

TEST(SeekSection, FindsASectionInAPieceOfALongLine) {
  for (const std::size_t before : {126U, 127U, 128U, 254U, 255U}) {
    expect_same("x\n" + std::string(before, 'y') + "[A-1]\nz\n");
    expect_same("x\n[A-1" + std::string(before, 'y') + "[A-1]\nz\n");
  }
}

TEST(SeekSection, FindsASectionAtEveryPlaceOfABlock) {
  constexpr std::size_t kBlock = std::size_t{16} * 1024;
  for (std::size_t place = kBlock - 140; place < kBlock + 10; ++place) {
    const std::string before(place - 101, 'x');
    expect_same(before + "\n" + std::string(99, 'y') + "\n[A-1]\nz\n");
    expect_same(std::string(place, '\n') + "[A-1]\nz\n");
  }
}

TEST(SeekSection, AgreesWithALookAtEveryLine) {
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
TEST(SeekSection, LooksForANameOnceInALongLine) {
  const std::string contents = "x\n" + std::string(std::size_t{20} << 20U, 'y');
  LineScanner lines = lines_of(std::string_view(contents));
  EXPECT_FALSE(qel::proio::seek_section(lines, kSection));
}

}  // namespace
