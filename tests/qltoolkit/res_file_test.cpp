// Resource files of projects.
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/source/res_file.h"
#include "tests/support/res_bytes.h"
#include <gtest/gtest.h>

using image::Resource;
using qltoolkit::readResources;
using test::ResBytes;

namespace {

std::string reasonOf(const std::string& bytes) {
    try {
        (void)readResources(bytes);
        return "";
    } catch (const basic::RuntimeError& error) {
        EXPECT_EQ(error.Number, basic::kInvalidFileFormat);
        return error.Description;
    }
}

} // namespace

TEST(ReadResources, SortsThemByTypeAndName) {
    const auto found =
        readResources(ResBytes().add("CUSTOM", "logo", "abc").add("#10", "#7", "xy").add("custom", "#2", "").bytes());
    EXPECT_EQ(found, (std::vector<Resource>{{"#10", "#7", "xy"}, {"CUSTOM", "#2", ""}, {"CUSTOM", "LOGO", "abc"}}));
}

TEST(ReadResources, PrefersTheLanguageOfTheUnitedStates) {
    const auto oneOf = [](std::vector<std::uint16_t> languages) {
        ResBytes file;
        for (const auto language : languages) file.add("#10", "#1", std::to_string(language), language);
        const auto found = readResources(file.bytes());
        return found.size() == 1 ? found[0].data : "";
    };
    EXPECT_EQ(oneOf({0x407, 0, 0x409}), "1033");
    EXPECT_EQ(oneOf({0x407, 0}), "0");
    EXPECT_EQ(oneOf({0x407, 0x40C}), "1031");
}

TEST(ReadResources, AFileMayHaveNone) { EXPECT_TRUE(readResources(ResBytes().bytes()).empty()); }

TEST(ReadResources, RefusesOtherFiles) {
    EXPECT_EQ(reasonOf(""), "the resource file is cut off");
    EXPECT_EQ(reasonOf(std::string(40, 'x')), "the resource file is cut off");
    // The entry of a file of 16 bits has no head like that of 32 bits.
    const std::string bytes = ResBytes().add("#10", "#1", "abc").bytes();
    EXPECT_EQ(reasonOf(bytes.substr(32)), "it is not a resource file of 32 bits");
    const std::string noData = ResBytes().add("#10", "#1", "").bytes();
    EXPECT_EQ(reasonOf(noData.substr(32)), "it is not a resource file of 32 bits");
    const std::string noType = ResBytes().add("#0", "#0", "abc").bytes();
    EXPECT_EQ(reasonOf(noType.substr(32)), "it is not a resource file of 32 bits");
}

TEST(ReadResources, RefusesAFileThatIsCutOffAnywhere) {
    const std::string bytes = ResBytes().add("#10", "NAME", "abcdefgh").bytes();
    constexpr std::size_t kFirstEntry = 32; // alone it is a file without resources
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        EXPECT_EQ(reasonOf(bytes.substr(0, length)).empty(), length == kFirstEntry) << length;
    }
}

TEST(ReadResources, RefusesAHeadThatIsTooShort) {
    std::string bytes = ResBytes().add("#10", "#1", "abc").bytes();
    for (const char size : {0, 8, 16, 28}) {
        bytes[36] = size;
        EXPECT_NE(reasonOf(bytes), "") << int(size);
    }
}
