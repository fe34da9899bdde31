// Converted font files: their names and headers.
#include "Add-in/build/dependencies/font_file.h"
#include "tests/support/traced_files.h"

using fernwick::FontFace;
using fernwick::readFontHead;

namespace {

std::string padded(std::string bytes, std::size_t size) {
    bytes.resize(size);
    return bytes;
}

/// A header without a wrapper.
std::string head(int version, int size, int more, int style, const std::string& face) {
    std::string bytes = {char(version), char(size), char(more), 'x', char(style)};
    return padded(bytes, 24) + padded(face, 32);
}

std::string wrapped(std::size_t length, const std::string& inside) {
    return "FIL" + std::string(13, 'w') + char(length) + std::string(length + 19, 'w') + inside;
}

class FontFiles : public testing::Test {
protected:
    bool matches(const std::string& face, const FontFace& asked) {
        files.files["/f.cmf"] = {head(2, 12, 0, 1, face)};
        return fernwick::FontFileMatches(files, "/f.cmf", asked);
    }
    test::Trace trace;
    test::TracedFiles files{trace};
};

} // namespace

TEST(FontFileName, ContainsFaceSizeAndStyle) {
    EXPECT_EQ(fernwick::GetFontFileName({"Arial", 1, 8}), "Ari_08B.CMF");
    EXPECT_EQ(fernwick::GetFontFileName({"Arial", 0, 12}), "Ari_12R.CMF");
    EXPECT_EQ(fernwick::GetFontFileName({"Arial", 2, 9}), "Ari_09I.CMF");
    EXPECT_EQ(fernwick::GetFontFileName({"Arial", 3, 10}), "Ari_10BI.CMF");
    EXPECT_EQ(fernwick::GetFontFileName({"Arial", 4, 100}), "Ari_100R.CMF");
    EXPECT_EQ(fernwick::GetFontFileName({"X", 0, 0}), "X_00R.CMF");
    EXPECT_EQ(fernwick::GetFontFileName({"Größe", 0, 8}), "Grö_08R.CMF");
}

TEST(FontHead, ContainsStyleSizeAndFace) {
    EXPECT_EQ(readFontHead(head(2, 12, 5, 3, "Arial")), (FontFace{"Arial", 3, 12}));
    EXPECT_EQ(readFontHead(head(1, 8, 1, 0, "Tahoma")), (FontFace{"Tahoma", 0, 8}));
}

TEST(FontHead, VersionThreeStoresTheSizeInTwoParts) {
    EXPECT_EQ(readFontHead(head(3, 255, 45, 0, "Arial")).size, 300);
    EXPECT_EQ(readFontHead(head(4, 12, 5, 0, "Arial")).size, 12);
}

TEST(FontHead, TheFaceEndsAtAZeroOrAfter32Bytes) {
    EXPECT_EQ(readFontHead(head(2, 8, 0, 0, std::string("Arial\0Bold", 10))).name, "Arial");
    EXPECT_EQ(readFontHead(head(2, 8, 0, 0, std::string(32, 'a')) + "bc").name, std::string(32, 'a'));
    EXPECT_EQ(readFontHead(head(2, 8, 0, 0,
                                "Gr\xF6\xDF"
                                "e"))
                  .name,
              "Größe");
}

TEST(FontHead, FollowsAWrapperOfVersionTwo) {
    for (const std::size_t length : {0, 1, 12, 255})
        EXPECT_EQ(readFontHead(wrapped(length, head(3, 12, 5, 2, "Arial"))), (FontFace{"Arial", 2, 12})) << length;
    EXPECT_LE(wrapped(255, head(3, 12, 5, 2, "Arial")).size(), fernwick::kFontHeadBytes);
}

TEST(FontHead, TruncatedHeadersReadAsZeros) {
    EXPECT_EQ(readFontHead(""), FontFace{});
    EXPECT_EQ(readFontHead("FIL"), FontFace{});
    EXPECT_EQ(readFontHead(wrapped(3, "")), FontFace{});
    EXPECT_EQ(readFontHead(head(3, 7, 2, 1, "Arial").substr(0, 2)), (FontFace{"", 0, 7}));
    EXPECT_EQ(readFontHead(head(2, 7, 2, 1, "Arial").substr(0, 26)), (FontFace{"Ar", 1, 7}));
}

TEST_F(FontFiles, MatchByTheirFaceOrTheConvertersMarkOnIt) {
    const FontFace arial{"Arial", 1, 12};
    EXPECT_TRUE(matches("Arial", arial));
    EXPECT_TRUE(matches("ArialCMF", arial));
    EXPECT_TRUE(matches("Arial CMF", arial));
    EXPECT_FALSE(matches("Arial cmf", arial));
    EXPECT_FALSE(matches("arial", arial));
    EXPECT_FALSE(matches("Arial Narrow", arial));
}

TEST_F(FontFiles, MatchInSizeAndStyleToo) {
    EXPECT_FALSE(matches("Arial", {"Arial", 0, 12}));
    EXPECT_FALSE(matches("Arial", {"Arial", 1, 11}));
}

TEST_F(FontFiles, AnUnreadableFileMatchesNothing) {
    EXPECT_EQ(fernwick::CheckFontFile(files, "/gone.cmf"), std::nullopt);
    EXPECT_FALSE(fernwick::FontFileMatches(files, "/gone.cmf", {}));
}
