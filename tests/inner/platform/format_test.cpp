#include "platform/format.h"
#include "support/comma_locale.h"

#include <gtest/gtest.h>

#include <cstdarg>
#include <string>

namespace {

std::string formatted(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const auto text = qel::platform::format(format, arguments);
  va_end(arguments);
  return text.value_or("(nothing)");
}

TEST(Format, RendersAsPrintfDoes) {
  EXPECT_EQ(formatted("%d %5.2f|%-4s|%x%%", 7, 3.14159, "ab", 255U), "7  3.14|ab  |ff%");
  EXPECT_EQ(formatted(""), "");
  EXPECT_EQ(formatted("%g", 1e100), "1e+100");
}

TEST(Format, RendersTextsOfAnyLength) {
  const std::string text(100000, 'v');
  EXPECT_EQ(formatted("%s!", text.c_str()), text + "!");
}

TEST(Format, DoesNotFollowTheProgramsLocale) {
  const qelpro_test::CommaLocale comma;
  if (!comma.is_set()) {
    GTEST_SKIP() << "the machine has no locale with a decimal comma";
  }
  EXPECT_EQ(formatted("%.1f", 1.5), "1.5");
}

TEST(Format, GivesNothingWhereTheFormatCannotBeApplied) {
  const wchar_t no_character[] = {static_cast<wchar_t>(0xD800), L'\0'};
  EXPECT_EQ(formatted("%ls", no_character), "(nothing)");
}

}  // namespace
