#include "text/file_image.h"

#include <gtest/gtest.h>

#include <string>

#include "inner/text/memory_file.h"

namespace qelpro_test {
namespace {

using qel::FileImage;

FileImage image_of(const std::string& contents) {
  MemoryFile file;
  file.bytes = contents;
  FileImage image;
  EXPECT_TRUE(image.load(file, file.size_in_memory()));
  return image;
}

TEST(FileImage, HoldsTheFile) {
  EXPECT_EQ(image_of("some bytes").bytes(), "some bytes");
  EXPECT_EQ(image_of("").bytes(), "");
}

TEST(FileImage, PutsTextsAroundAPart) {
  FileImage image = image_of("0123456789");
  EXPECT_EQ(image.compose("abc", 5, 8, "xyz"), "abc567xyz");
  image.restore();
  EXPECT_EQ(image.bytes(), "0123456789");
}

TEST(FileImage, HasRoomInFrontOfTheFileAndAfterIt) {
  FileImage image = image_of("0123456789");
  const std::string before(FileImage::kReserve, 'b');
  const std::string after(FileImage::kReserve, 'a');
  EXPECT_EQ(image.compose(before, 0, 10, after), before + "0123456789" + after);
  image.restore();
  EXPECT_EQ(image.bytes(), "0123456789");
}

TEST(FileImage, PutsLongerTextsAroundAPart) {
  FileImage image = image_of("0123456789");
  const std::string longer(FileImage::kReserve + 1, 'b');
  EXPECT_EQ(image.compose(longer, 5, 8, "a"), longer + "567a");
  EXPECT_EQ(image.compose("b", 0, 10, longer), "b0123456789" + longer);
  image.restore();
  EXPECT_EQ(image.bytes(), "0123456789");
}

TEST(FileImage, IsRestoredWhereTheTextsCoverEachOther) {
  FileImage image = image_of("0123456789");
  EXPECT_EQ(image.compose("abcdef", 6, 6, "uvw"), "abcdefuvw");
  image.restore();
  image.restore();
  EXPECT_EQ(image.bytes(), "0123456789");
}

}  // namespace
}  // namespace qelpro_test
