// Records that are appended to resource files.
#include "Host/files/resource_file.h"
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using host::ResourceFile;
using testing::ElementsAre;

namespace {

std::string bytesOf(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) bytes += static_cast<char>(value);
    return bytes;
}

} // namespace

TEST(ResourceRecords, OfPicturesHaveTheDesignersHeader) {
    EXPECT_EQ(host::pictureRecord("GIF", false), bytesOf({11, 0, 0, 0, 'l', 't', 0, 0, 3, 0, 0, 0, 'G', 'I', 'F'}));
    const auto bag = host::pictureRecord("GIF", true);
    EXPECT_EQ(bag.substr(0, 8), bytesOf({27, 0, 0, 0, 0x04, 0x52, 0xE3, 0x0B}));
    EXPECT_EQ(bag.substr(20), bytesOf({'l', 't', 0, 0, 3, 0, 0, 0, 'G', 'I', 'F'}));
    EXPECT_EQ(ResourceFile(bag).picture(0).value, "GIF");
}

TEST(ResourceRecords, OfTextsHaveALengthOfOneByteOrThree) {
    EXPECT_EQ(host::textRecord("ab"), bytesOf({2, 'a', 'b'}));
    EXPECT_EQ(host::textRecord(std::string(254, 'x')).substr(0, 2), bytesOf({254, 'x'}));
    EXPECT_EQ(host::textRecord(std::string(255, 'x')).substr(0, 4), bytesOf({255, 255, 0, 'x'}));
    EXPECT_EQ(host::stringRecord("ab"), bytesOf({2, 0, 0, 0, 'a', 'b'}));
}

TEST(ResourceRecords, OfListsHaveTheLengthOfTheLongestItem) {
    EXPECT_EQ(host::listRecord({"a", "bcd"}), bytesOf({2, 0, 3, 0, 1, 0, 'a', 3, 0, 'b', 'c', 'd'}));
    EXPECT_EQ(host::listRecord({}), bytesOf({0, 0}));
    EXPECT_EQ(host::itemDataRecord({"0", "0"}), bytesOf({2, 0, 3, 0, 1, 0, '0', 1, 0, '0'}));
}

TEST(ResourceRecords, AreReadBackAfterOtherBytes) {
    const std::string before = "older records";
    const std::string item(host::kLongestListItem, 'y');
    EXPECT_THAT(ResourceFile(before + host::listRecord({item, ""})).list(before.size()).value, ElementsAre(item, ""));
    EXPECT_THAT(ResourceFile(before + host::itemDataRecord({"-2147483648", "7"})).itemData(before.size()).value,
                ElementsAre(-2147483647 - 1, 7));
}
