#include "kestotool/gdi/PngFile.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <string>

using KestoGDI::PngFile;

namespace {

std::string TempPath(const char* name)
{
    return testing::TempDir() + name;
}

} // namespace

TEST(PngFile, APictureWrittenIsReadBackWithStraightAlpha)
{
    // Premultiplied half-transparent red and an opaque blue.
    const std::uint32_t pixels[2] = {0x80800000, 0xFF0000FF};
    const std::string path = TempPath("kesto-roundtrip.png");
    ASSERT_TRUE(PngFile::WritePremultiplied(path, pixels, 2, 1, 8));
    std::string error;
    const auto bitmap = PngFile::Read(path, &error);
    ASSERT_TRUE(bitmap) << error;
    EXPECT_EQ(bitmap->GetWidth(), 2);
    EXPECT_EQ(bitmap->GetBits()[0], 0x80FF0000u);
    EXPECT_EQ(bitmap->GetBits()[1], 0xFF0000FFu);
    std::remove(path.c_str());
}

TEST(PngFile, FilesThatAreNotReadablePngsAreRefusedWithTheirReason)
{
    const std::string text = TempPath("kesto-not-a.png");
    std::ofstream(text) << "not a picture";
    const std::string cut = TempPath("kesto-cut.png");
    const std::uint32_t pixel = 0xFF00FF00;
    ASSERT_TRUE(PngFile::WritePremultiplied(cut, &pixel, 1, 1, 4));
    std::string whole;
    {
        std::ifstream in(cut, std::ios::binary);
        whole.assign(std::istreambuf_iterator<char>(in), {});
    }
    std::ofstream(cut, std::ios::binary) << whole.substr(0, 40);
    const struct {
        std::string path;
        const char* reason;
    } rows[] = {{TempPath("kesto-missing.png"), "cannot be opened"}, {text, "not a PNG file"}, {cut, "damaged"}};
    for (const auto& row : rows) {
        std::string error;
        EXPECT_FALSE(PngFile::Read(row.path, &error));
        EXPECT_NE(error.find(row.path), std::string::npos) << error;
        EXPECT_NE(error.find(row.reason), std::string::npos) << error;
    }
    std::remove(text.c_str());
    std::remove(cut.c_str());
}
