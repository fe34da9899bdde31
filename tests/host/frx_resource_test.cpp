#include "Host/files/resource_file.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using host::ResourceFile;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

std::string u16(unsigned n) { return {char(n & 255), char(n >> 8 & 255)}; }
std::string u32(unsigned n) { return u16(n & 0xFFFF) + u16(n >> 16); }
std::string mark() { return {'l', 't', '\0', '\0'}; }
std::string pictureClass() {
    return {'\x04', '\x52', '\xE3', '\x0B', '\x91', '\x8F', '\xCE', '\x11',
            '\x9D', '\xE3', '\x00', '\xAA', '\x00', '\x4B', '\xB8', '\x51'};
}
std::string plainPicture(const std::string& image) {
    return u32(unsigned(image.size()) + 8) + mark() + u32(unsigned(image.size())) + image;
}
std::string bagPicture(const std::string& image) {
    return u32(unsigned(image.size()) + 24) + pictureClass() + mark() + u32(unsigned(image.size())) + image;
}
std::string listRecord(unsigned longest, const std::vector<std::string>& items) {
    std::string out = u16(unsigned(items.size())) + u16(longest);
    for (const auto& item : items) out += u16(unsigned(item.size())) + item;
    return out;
}

} // namespace

TEST(ResourceFile, Pictures) {
    const ResourceFile file("junk" + plainPicture("GIF89a..") + bagPicture("BMdata") + plainPicture(""));
    EXPECT_EQ(file.picture(4).value, "GIF89a..");
    EXPECT_EQ(file.picture(24).value, "BMdata");
    const auto empty = file.picture(24 + 34);
    EXPECT_TRUE(empty) << empty.warning;
    EXPECT_EQ(empty.value, "");
}

TEST(ResourceFile, Texts) {
    const std::string longText(300, 'x');
    const ResourceFile file(u32(5) + "Hello" + "\x03" + "abc" + "\xFF" + u16(300) + longText);
    EXPECT_EQ(file.string(0).value, "Hello");
    EXPECT_EQ(file.text(9).value, "abc");
    EXPECT_EQ(file.text(13).value, longText);
}

TEST(ResourceFile, Lists) {
    const ResourceFile file(listRecord(5, {"one", "three", ""}) + listRecord(3, {"0", "-7"}) + u16(0));
    EXPECT_THAT(file.list(0).value, ElementsAre("one", "three", ""));
    EXPECT_THAT(file.itemData(18).value, ElementsAre(0, -7));
    const auto empty = file.list(29);
    EXPECT_TRUE(empty) << empty.warning;
    EXPECT_THAT(empty.value, IsEmpty());
}

TEST(ResourceFile, PagesAndOtherData) {
    const ResourceFile file(u32(2) + u16(4) + std::string("One\0", 4) + u16(2) + std::string("B\0", 2) + u32(3) +
                            "xyz");
    EXPECT_THAT(file.propertyPages(0).value, ElementsAre("One", "B"));
    EXPECT_EQ(file.binary(14).value, "xyz");
}

TEST(ResourceFile, AnOffsetBeyondTheEndIsAWarning) {
    const ResourceFile file(plainPicture("GIF"));
    for (const std::size_t offset : {file.bytes().size(), std::size_t(2500), ~std::size_t(0)}) {
        EXPECT_FALSE(file.picture(offset));
        EXPECT_FALSE(file.string(offset));
        EXPECT_FALSE(file.text(offset));
        EXPECT_FALSE(file.list(offset));
        EXPECT_FALSE(file.itemData(offset));
        EXPECT_FALSE(file.propertyPages(offset));
        EXPECT_FALSE(file.binary(offset));
    }
    EXPECT_EQ(file.picture(0x9C4).warning, "There is no picture at 09C4 of the resource file.");
}

TEST(ResourceFile, AnAbsurdLengthAllocatesNoMemory) {
    const ResourceFile file(u32(0xFFFFFFF0) + mark() + u32(0xFFFFFFE8) + "x");
    EXPECT_FALSE(file.picture(0));
    EXPECT_FALSE(file.string(0));
    EXPECT_FALSE(file.binary(0));
    EXPECT_FALSE(file.propertyPages(0));
    EXPECT_EQ(file.string(0).value, "");
}

TEST(ResourceFile, APictureWithInconsistentLengthsIsRejected) {
    EXPECT_FALSE(ResourceFile(u32(12) + mark() + u32(3) + "GIF.").picture(0));
    EXPECT_FALSE(ResourceFile(u32(11) + "no!!" + u32(3) + "GIF").picture(0));
    auto bag = bagPicture("GIF");
    bag[15] = 'x';
    EXPECT_FALSE(ResourceFile(bag).picture(0));
}

TEST(ResourceFile, BytesBetweenRecordsDoNotMatter) {
    const ResourceFile file(plainPicture("A") + "orphan of an older state" + plainPicture("B"));
    EXPECT_EQ(file.picture(0).value, "A");
    EXPECT_EQ(file.picture(37).value, "B");
}

TEST(ResourceFile, AListThatIsOffByAFewBytesIsEmpty) {
    const ResourceFile file(listRecord(6, {"Monday", "Friday", "Sunday"}));
    for (std::size_t offset = 1; offset < file.bytes().size(); ++offset) {
        const auto list = file.list(offset);
        EXPECT_TRUE(!list || list.value.empty()) << offset;
        EXPECT_TRUE(list.value.empty()) << offset;
    }
    const auto data = file.itemData(0);
    EXPECT_FALSE(data);
    EXPECT_THAT(data.value, IsEmpty());
    EXPECT_THAT(data.warning, HasSubstr("list of numbers"));
}
