// The directory of an icon file, well-formed or not.
#include "Add-in/settings/iconReader.h"
#include "Host/system/file_system.h"
#include "icon_bytes.h"
#include "tests/support/temp_folder.h"
#include <gtest/gtest.h>

using fernwick::iconReader;
using test::icon;
using test::number;

namespace {

/// A BITMAPINFOHEADER.
std::string bitmapHeader(int bits) {
    return number(40, 4) + number(16, 4) + number(32, 4) + number(1, 2) + number(std::uint32_t(bits), 2) +
           number(0, 24);
}

class IconReader : public testing::Test {
protected:
    iconReader::Result load(const std::string& bytes) { return reader.LoadIconFile(folder.write("My.ico", bytes)); }
    /// The bit count of an image; -1 if there are no data.
    int bits(std::int16_t index) {
        fernwick::IconImage image;
        return reader.GetImageInfo(index, image) == iconReader::Done ? image.BitCount : -1;
    }

    test::TempFolder folder;
    host::FileSystem files;
    iconReader reader{files};
};

TEST_F(IconReader, ReadsEachImageOfTheDirectory) {
    EXPECT_EQ(load(icon({{16, 24, 4, 16, 1, 296, 38}, {32, 0, 24, 0, 2, 3240, 334}})), iconReader::Done);
    EXPECT_EQ(reader.ImageCount(), 2);
    EXPECT_EQ(reader.IconFileName(), folder / "My.ico");

    fernwick::IconImageDetails image;
    EXPECT_EQ(reader.GetImageDetails(1, image), iconReader::Done);
    EXPECT_EQ(image.Width, 16);
    EXPECT_EQ(image.Height, 24);
    EXPECT_EQ(image.BitCount, 4);
    EXPECT_EQ(image.ColorCount, 16);
    EXPECT_EQ(image.Planes, 1);
    EXPECT_EQ(image.ByteSize, 296);
    EXPECT_EQ(reader.GetImageDetails(2, image), iconReader::Done);
    EXPECT_EQ(image.Width, 32);
    EXPECT_EQ(image.Height, 0);
    EXPECT_EQ(image.ColorCount, 0);
    EXPECT_EQ(image.BitCount, 24);
    EXPECT_EQ(image.Planes, 2);
    EXPECT_EQ(image.ByteSize, 3240);
}

TEST_F(IconReader, ReadsTheBitsFromTheImageIfTheDirectoryLacksThem) {
    const auto first = icon({{16, 16, 0, 0, 0, 40, 38}, {16, 16, 0, 0, 0, 40, 78}});
    EXPECT_EQ(load(first + bitmapHeader(32) + bitmapHeader(8)), iconReader::Done);
    EXPECT_EQ(bits(1), 32);
    EXPECT_EQ(bits(2), 8);
}

TEST_F(IconReader, AnIndexOutsideOfTheDirectoryGivesNoData) {
    load(icon({{16, 16, 4}}));
    fernwick::IconImageDetails image;
    image.Width = 99;
    EXPECT_EQ(reader.GetImageDetails(2, image), 9);
    EXPECT_EQ(reader.GetImageDetails(0, image), 5);
    EXPECT_EQ(reader.GetImageDetails(-1, image), 5);
    EXPECT_EQ(reader.GetImageInfo(2, image), 9);
    EXPECT_EQ(reader.GetImageInfo(0, image), 5);
    EXPECT_EQ(image.Width, 99);
}

TEST_F(IconReader, IsEmptyBeforeAFileIsLoaded) {
    EXPECT_EQ(reader.ImageCount(), 0);
    EXPECT_EQ(reader.IconFileName(), "");
    fernwick::IconImage image;
    EXPECT_EQ(reader.GetImageInfo(1, image), 5);
}

TEST_F(IconReader, AMissingFileIsNoIcon) {
    EXPECT_EQ(reader.LoadIconFile(folder / "None.ico"), 5);
    EXPECT_EQ(reader.LoadIconFile(""), 5);
    EXPECT_EQ(reader.LoadIconFile(folder.path()), 5);
}

TEST_F(IconReader, RefusesABitmapNamedLikeAnIcon) {
    EXPECT_EQ(load("BM" + number(630, 4) + number(0, 4) + number(118, 4) + bitmapHeader(24)), 5);
    EXPECT_EQ(load(icon({{16, 16, 4}}, -1, 2)), 5); // a cursor
    EXPECT_EQ(reader.ImageCount(), 0);
}

TEST_F(IconReader, ADirectoryWithoutImagesIsAnIcon) {
    EXPECT_EQ(load(icon({})), iconReader::Done);
    EXPECT_EQ(reader.ImageCount(), 0);
    EXPECT_EQ(bits(1), -1);
}

TEST_F(IconReader, AFailedLoadDiscardsTheEarlierFile) {
    EXPECT_EQ(load(icon({{16, 16, 4}})), iconReader::Done);
    EXPECT_EQ(load("no icon"), 5);
    EXPECT_EQ(reader.ImageCount(), 0);
    EXPECT_EQ(reader.IconFileName(), "");
    EXPECT_EQ(bits(1), -1);
}

TEST_F(IconReader, AnotherFileReplacesTheFirst) {
    load(icon({{16, 16, 4}, {32, 32, 8}}));
    load(icon({{48, 48, 24}}));
    EXPECT_EQ(reader.ImageCount(), 1);
    EXPECT_EQ(bits(1), 24);
}

TEST_F(IconReader, FieldsBeyondTheEndAreZero) {
    const auto whole = icon({{16, 16, 0, 0, 0, 40, 0xFFFFFFF8}});
    EXPECT_EQ(load(whole), iconReader::Done); // the image is beyond the end
    EXPECT_EQ(bits(1), 0);
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(load(whole.substr(0, size)), size < 3 ? 5 : iconReader::Done) << size;
    EXPECT_EQ(load(icon({}, 0x7FFF)), iconReader::Done);
    EXPECT_EQ(reader.ImageCount(), 0x7FFF);
}

TEST_F(IconReader, ANegativeCountIsNoIcon) { EXPECT_EQ(load(icon({}, 0x8000)), 5); }

TEST_F(IconReader, AFileThatCannotBeReadIsNoIcon) {
    struct Unreadable : host::FileSystem {
        std::string ReadPart(const std::string&, std::uint64_t, std::size_t) const override {
            throw basic::RuntimeError(70);
        }
    } unreadable;
    iconReader failing{unreadable};
    EXPECT_EQ(failing.LoadIconFile(folder.write("My.ico", icon({{16, 16, 4}}))), 5);
}

} // namespace
