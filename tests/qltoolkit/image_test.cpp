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

/// A text of 100 KB that 100,000 literals refer to would otherwise need 10 GB.
TEST(Image, SharesTextsThatOccurOften) {
    Image image;
    image.modules.emplace_back().strings.assign(100'000, SharedText(std::string(100'000, 'x')));
    const auto bytes = encode(image);
    EXPECT_LT(bytes.size(), 600'000u);
    const auto decoded = decode(bytes);
    const auto& texts = decoded.modules.at(0).strings;
    EXPECT_EQ(&texts.front().str(), &texts.back().str());
}

Control nested(int levels) {
    Control control;
    for (int i = 0; i < levels; ++i) {
        Control parent;
        parent.children.push_back(std::move(control));
        control = std::move(parent);
    }
    return control;
}

TEST(Image, HasTheSameLimitsForWritersAndReaders) {
    Image image;
    image.forms = {nested(kDeepestControl)};
    EXPECT_EQ(decode(encode(image)), image);
    image.forms = {nested(kDeepestControl + 1)};
    EXPECT_EQ(basic::attempt([&] { encode(image); }).Description, "The controls of a form are nested too deeply.");
    image.forms = {};
    image.startup = std::string(std::size_t(kLargestImage), 'x');
    EXPECT_EQ(basic::attempt([&] { encode(image); }).Description, "The compiled application is too large.");
    EXPECT_EQ(failureOf(image.startup), "The compiled file is damaged: it is not a compiled application.");
    EXPECT_EQ(failureOf(image.startup.str() + "x"), "The compiled file is damaged: it is too large.");
}

TEST(Image, ReportsTheReason) {
    EXPECT_EQ(failureOf("PK\x03\x04 and more of a zip file"),
              "The compiled file is damaged: it is not a compiled application.");
    std::string later = encode(tipCalculator());
    later[4] = 9;
    EXPECT_EQ(failureOf(later), "The compiled file is damaged: its format is version 9.");
}
