#include "Components/QLPipe/base/late_library.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace qlpipe;

TEST(PipeMessages, AreCompleteAndHaveUniqueNumbers) {
    std::set<std::int32_t> numbers;
    for (const auto table : pipeMessages())
        for (const auto& message : table) {
            SCOPED_TRACE(message.number);
            EXPECT_TRUE(numbers.insert(message.number).second);
            EXPECT_FALSE(message.text.empty() || message.meaning.empty() || message.remedy.empty());
        }
}

TEST(PipeMessages, HaveNumbersInTheirRanges) {
    for (const auto table : pipeMessages())
        for (const auto& message : table) {
            const auto first = message.isError ? 20000 : 3100, last = message.isError ? 20999 : 3899;
            EXPECT_TRUE(message.number >= first && message.number <= last) << message.number;
        }
}

TEST(PipeMessages, FillInNamedValues) {
    EXPECT_EQ(messageText(kNameTwice, {{"file", "a{other}"}, {"other", "b"}}),
              "a{other} and b would have the same name on the device. Rename one of them.");
    EXPECT_EQ(fillIn("{a} {b} {", {{"a", "1"}}), "1 {b} ");
    EXPECT_EQ(messageText(kNoImage), "There is no compiled application. Compile the project first.");
    EXPECT_EQ(messageText(1), "");
    EXPECT_EQ(transferError(kNoImage).number, kNoImage);
}

TEST(PipeMessages, GroupTheDigitsOfSizes) {
    EXPECT_EQ(bytesInWords(0), "0 bytes");
    EXPECT_EQ(bytesInWords(1), "1 byte");
    EXPECT_EQ(bytesInWords(999), "999 bytes");
    EXPECT_EQ(bytesInWords(1'000), "1,000 bytes");
    EXPECT_EQ(bytesInWords(123'456'789), "123,456,789 bytes");
}

TEST(LateLibrary, NamesTheMissingPackage) {
    try {
        LateLibrary library("libnowhere.so.1", "libnowhere1");
        FAIL() << "loaded a library that does not exist";
    } catch (const TransferError& error) {
        EXPECT_EQ(error.number, kLibraryMissing);
        EXPECT_EQ(error.text,
                  "The library libnowhere.so.1 is not installed. Install it with: apt-get install libnowhere1");
    }
}

TEST(LateLibrary, RefusesAVersionThatLacksAFunction) {
    const LateLibrary library("libc.so.6", "libc6");
    try {
        (void)library["no_such_function"];
        FAIL() << "found a function that does not exist";
    } catch (const TransferError& error) {
        EXPECT_EQ(error.text, "The library libc.so.6 is not installed. Install it with: apt-get install libc6");
    }
    const decltype(&::strtol) function = library["strtol"];
    EXPECT_EQ(function("12", nullptr, 10), 12);
}

} // namespace
