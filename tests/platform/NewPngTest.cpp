#include "platform/Image.h"
#include "testing/PngFile.h"
#include "testing/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(NewPng, HoldsThePictureAndReplacesNoFile)
{
    TemporaryFolder folder;
    const std::string file = folder.path() / "picture.png";
    const Image image{1, 2, 3, {10, 20, 30, 40, 50, 60}}; // the lower row first
    EXPECT_EQ(writeNewPng(image, file), std::error_code());
    const Image other{1, 1, 3, {1, 2, 3}};
    EXPECT_EQ(writeNewPng(other, file), std::errc::file_exists);
    const Picture read = readPng(file);
    EXPECT_EQ(std::pair(read.width, read.height), std::pair(1, 2));
    EXPECT_EQ(read.pixels, (std::vector<unsigned char>{40, 50, 60, 10, 20, 30}));
    EXPECT_EQ(writeNewPng(other, folder.path() / "nowhere/picture.png"), std::errc::no_such_file_or_directory);
}

} // namespace
