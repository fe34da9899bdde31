// The table of the add-in's own messages.
#include "Add-in/build/messages/build_messages.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"
#include <algorithm>
#include <gmock/gmock.h>

namespace {

using namespace fernwick;
namespace numbers = fernwick::message_numbers;

const MessageInfo& row(std::int32_t number) {
    const auto rows = buildMessages();
    return *std::find_if(rows.begin(), rows.end(), [=](const MessageInfo& r) { return r.number == number; });
}

TEST(BuildMessages, HaveOneRowForEachNumber) {
    std::vector<std::int32_t> all;
    for (const auto& info : buildMessages()) all.push_back(info.number);
    EXPECT_THAT(all,
                testing::ElementsAre(2999, 4097, 4119, 8193, 8198, 8199, 8200, 8201, 8202, 8205, 8206, 8208, 12289));
}

TEST(BuildMessages, HaveAMeaningAndARemedy) {
    for (const auto& info : buildMessages()) {
        EXPECT_FALSE(info.text.empty() || info.meaning.empty() || info.remedy.empty()) << info.number;
        EXPECT_TRUE(info.meaning.ends_with('.') && info.remedy.ends_with('.')) << info.number;
        EXPECT_TRUE(info.number == numbers::kPictureHelp || !info.example.empty()) << info.number;
    }
}

TEST(BuildMessages, AreErrorsOrWarningsAsTheyAreStored) {
    for (const auto number : {2999, 4097, 4119, 8200, 8205, 12289}) EXPECT_TRUE(row(number).isError) << number;
    for (const auto number : {8193, 8198, 8199, 8201, 8202, 8206, 8208}) EXPECT_FALSE(row(number).isError) << number;
}

TEST(BuildMessages, NameTheirPlaceholders) {
    EXPECT_EQ(row(numbers::kToolsMissing).text,
              "Compiler tools could not be loaded. Please contact Quinloft at {address}");
    EXPECT_EQ(row(numbers::kScaleModeNotPixels).text, build_texts::kScaleModeNotPixels);
    EXPECT_EQ(row(numbers::kFormEventNotSupported).text, build_texts::kFormEventNotSupported);
}

TEST(BuildMessages, ShowBracesOfTheTextOnce) {
    EXPECT_EQ(row(numbers::kControlEventNotSupported).text,
              "{procedure} is not supported by Quinloft Fernwick for {class}{{control}}");
}

} // namespace
