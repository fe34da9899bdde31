#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include <gtest/gtest.h>

using namespace image;

namespace {

Image tipCalculator() {
    Image image;
    image.compilerVersion = "1";
    image.projectName = "TipCalculator";
    image.startup = "frmTip";
    image.info = {{"Major", "1"}, {"Title", "Trinkgeld \xC3\xBC"}};
    image.constants = {{"QUINLOFT", 1}, {"Trace", -1}};
    image.libraries = {"QLTavlets.dll"};
    Control text{"Tavlets.TextBox", "txtBill", 2, {{"Text", "\"12.50\""}, {"Font.Size", "12"}}, {}};
    image.forms = {{"VB.Form", "frmTip", Control::kNoIndex, {{"Caption", "\"Tip\""}}, {text}}};
    image.modules = {{ModuleKind::Form,
                      "frmTip",
                      "frmTip.frm",
                      40,
                      {{MemberKind::Sub, false, "cmdTip_Click", 21, 0}},
                      {"12.50", ""}}};
    return image;
}

std::string failureOf(std::string_view bytes) {
    const auto err = basic::attempt([&] { decode(bytes); });
    EXPECT_EQ(err.Number, 321);
    return err.Description;
}

} // namespace

TEST(Image, SurvivesARoundTrip) {
    const Image image = tipCalculator();
    EXPECT_EQ(decode(encode(image)), image);
    EXPECT_EQ(decode(encode(Image{})), Image{});
}

TEST(Image, EncodesEqualImagesEqually) { EXPECT_EQ(encode(tipCalculator()), encode(tipCalculator())); }

TEST(Image, RefusesEveryTruncation) {
    const std::string bytes = encode(tipCalculator());
    for (size_t length = 0; length < bytes.size(); ++length) failureOf(std::string_view(bytes).substr(0, length));
}

TEST(Image, RefusesEveryChangedByteAfterTheHeader) {
    const std::string bytes = encode(tipCalculator());
    for (size_t at = 20; at < bytes.size(); ++at) {
        std::string damaged = bytes;
        damaged[at] = char(damaged[at] ^ 0x40);
        EXPECT_EQ(failureOf(damaged), "The compiled file is damaged: its checksum is wrong.");
    }
}

TEST(Image, ReportsTheReason) {
    EXPECT_EQ(failureOf("PK\x03\x04 and more of a zip file"),
              "The compiled file is damaged: it is not a compiled application.");
    std::string later = encode(tipCalculator());
    later[4] = 9;
    EXPECT_EQ(failureOf(later), "The compiled file is damaged: its format is version 9.");
}
