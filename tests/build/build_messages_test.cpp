// The table of the add-in's own messages: it says what users read.
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

/// A text as the code has it, its "{name}" as "%1" and so on.
std::string numbered(std::string_view text) {
    std::string out;
    int count = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool twice = i + 1 < text.size() && text[i + 1] == text[i];
        if (text[i] == '{' && !twice) {
            out += '%' + std::to_string(++count);
            i = text.find('}', i);
        } else {
            out += text[i];
            if ((text[i] == '{' || text[i] == '}') && twice) ++i;
        }
    }
    return out;
}

TEST(BuildMessages, HaveOneRowForEachNumber) {
    std::vector<std::int32_t> all;
    for (const auto& info : buildMessages()) all.push_back(info.number);
    EXPECT_THAT(all,
                testing::ElementsAre(2999, 4097, 4119, 8193, 8198, 8199, 8200, 8201, 8202, 8205, 8206, 8208, 12289));
}

TEST(BuildMessages, SayWhatTheyMeanAndWhatToDo) {
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

TEST(BuildMessages, HaveTheWordsThatAreShown) {
    const std::pair<std::int32_t, std::string> shown[] = {
        {numbers::kToolsMissing, build_texts::kToolsMissingMessage + std::string("{address}")},
        {numbers::kComponentNotSupported, build_texts::kComponentNotSupported},
        {numbers::kFontMissing, std::string(build_texts::kFontMissing) + build_texts::kFontMissingElsewhere},
        {numbers::kControlEventNotSupported, build_texts::kControlEventNotSupported},
        {numbers::kFormEventNotSupported, std::string(build_texts::kFormEventNotSupported) + "{instead}"},
        {numbers::kScaleModeNotPixels, build_texts::kScaleModeNotPixels},
        {numbers::kStartUpPositionManual, build_texts::kStartUpPositionManual},
        {numbers::kFormPicture, build_texts::kFormPicture},
        {numbers::kReferenceMissing, build_texts::kReferenceMissing},
        {numbers::kBorderStyle, build_texts::kBorderStyle},
        {numbers::kFilesNotSaved, build_texts::kSavingFailed + std::string("{address}")},
    };
    for (const auto& [number, text] : shown) EXPECT_EQ(row(number).text, numbered(text)) << number;
}

TEST(BuildMessages, HaveOneRowForBothKindsOfReservedNames) {
    for (const std::string kind : {"form", "control"}) {
        auto text = std::string(row(numbers::kReservedWord).text);
        text.replace(text.find("%2"), 2, kind);
        EXPECT_EQ(text, numbered(kind == "form" ? build_texts::kReservedFormName : build_texts::kReservedControlName));
    }
}

} // namespace
