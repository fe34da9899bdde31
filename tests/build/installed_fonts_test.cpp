// The converted fonts of the installation.
#include "Add-in/build/dependencies/font_file.h"
#include "Host/system/file_system.h"
#include <gmock/gmock.h>

namespace {

const std::string kFontsFolder = FERNWICK_SOURCE_DIR "/installation/Fonts";

class InstalledFonts : public testing::TestWithParam<fernwick::FontFace> {
protected:
    std::string path() const { return files.BuildPath(kFontsFolder, fernwick::GetFontFileName(GetParam())); }
    int byte(std::size_t at) const { return static_cast<unsigned char>(bytes.at(at)); }

    host::FileSystem files;
    std::string bytes = files.ReadBytes(path());
};

TEST_P(InstalledFonts, HoldWhatTheirNamesSay) { EXPECT_TRUE(fernwick::FontFileMatches(files, path(), GetParam())); }

TEST_P(InstalledFonts, HaveABodyAsLongAsItsWidthsSay) {
    EXPECT_EQ(bytes.substr(56, 4), "CMFB");
    EXPECT_EQ(byte(60), 1);
    EXPECT_EQ(byte(61), 1);
    EXPECT_LE(byte(63), byte(62));
    EXPECT_EQ(byte(64) + 256 * byte(65), 1252);
    const std::size_t codes = std::size_t(byte(67) - byte(66) + 1);
    std::size_t length = 72 + codes;
    for (std::size_t code = 0; code < codes; ++code) length += std::size_t((byte(72 + code) + 7) / 8 * byte(62));
    EXPECT_EQ(bytes.size(), length);
}

TEST_P(InstalledFonts, HaveTheLettersOfWesternLanguages) {
    const auto widthOf = [&](int code) { return byte(std::size_t(72 + code - byte(66))); };
    for (int code = ' '; code <= '~'; ++code) EXPECT_GT(widthOf(code), 0) << code;
    for (const int code : {0x80, 0xC4, 0xE9, 0xF1, 0xFF}) EXPECT_GT(widthOf(code), 0) << code;
    EXPECT_GT(widthOf(byte(68)), 0); // the replacement character
    EXPECT_EQ(widthOf(0x81), 0);
}

INSTANTIATE_TEST_SUITE_P(Shipped, InstalledFonts,
                         testing::Values(fernwick::FontFace{"QLPalm", 0, 12}, fernwick::FontFace{"Tahoma", 0, 8},
                                         fernwick::FontFace{"Tahoma", 1, 8}, fernwick::FontFace{"DejaVu Sans", 0, 9}));

TEST(InstalledFontsFolder, HoldsNoOtherFonts) {
    EXPECT_THAT(host::FileSystem().Files(kFontsFolder),
                testing::ElementsAre("Dej_09R.CMF", "QLP_12R.CMF", "README.md", "Tah_08B.CMF", "Tah_08R.CMF"));
}

} // namespace
