#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"
#include <functional>
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

namespace {

std::uint32_t u32At(const std::string& bytes, std::size_t at) {
    Reader in{std::string_view(bytes).substr(at)};
    return in.u32();
}
void put(std::string& bytes, std::size_t at, std::uint32_t value) {
    Writer out;
    out.u32(value);
    bytes.replace(at, 4, out.bytes());
}
/// Where the entry of a section is in the table after the header: its name, offset and size.
std::size_t entryOf(const std::string& bytes, std::string_view name) { return bytes.find(name, kHeaderSize); }
std::size_t beginOf(const std::string& bytes, std::string_view name) { return u32At(bytes, entryOf(bytes, name) + 4); }

/// The reason for refusing an image after a change that its length and checksum allow.
std::string reasonFor(const std::function<void(std::string& bytes)>& change) {
    auto bytes = encode(tipCalculator());
    change(bytes);
    put(bytes, 8, std::uint32_t(bytes.size()));
    put(bytes, 12, crc32(std::string_view(bytes).substr(kHeaderSize)));
    const auto text = failureOf(bytes);
    const std::string begin = "The compiled file is damaged: ";
    EXPECT_TRUE(text.starts_with(begin)) << text;
    return text.substr(begin.size());
}

} // namespace

TEST(Image, BeginsWithTheDocumentedHeader) {
    const auto bytes = encode(tipCalculator());
    EXPECT_EQ(bytes.substr(0, 8), std::string("QLX\x1A\2\0\0\0", 8)); // version 2.0
    EXPECT_EQ(u32At(bytes, 8), bytes.size());
    EXPECT_EQ(u32At(bytes, 16), 4u);
    for (const auto* name : {"PROJ", "FORM", "MODS", "STRS"}) EXPECT_LT(entryOf(bytes, name), 20u + 4 * 12) << name;
}

TEST(Image, NamesTheReasonForRefusingIt) {
    const auto set = [](const char* section, std::size_t at, std::uint32_t value) {
        return [=](std::string& bytes) { put(bytes, beginOf(bytes, section) + at, value); };
    };
    const auto setEntry = [](const char* section, std::size_t at, std::uint32_t value) {
        return [=](std::string& bytes) { put(bytes, entryOf(bytes, section) + at, value); };
    };
    EXPECT_EQ(reasonFor(set("PROJ", 0, 0xFFFF)), "a string is missing.");
    EXPECT_EQ(reasonFor(set("MODS", 4, 9)), "an unknown kind.");
    EXPECT_EQ(reasonFor(set("FORM", 0, 0xFFFFFF)), "a count is larger than the file.");
    EXPECT_EQ(reasonFor(setEntry("MODS", 4, 0xFFFFFF)), "a section is outside the file.");
    EXPECT_EQ(reasonFor(setEntry("MODS", 8, 0xFFFFFF)), "a section is outside the file.");
    EXPECT_EQ(reasonFor(setEntry("MODS", 8, 3)), "it ends too early.");
    EXPECT_EQ(reasonFor([](std::string& bytes) { bytes[entryOf(bytes, "MODS")] = 'X'; }), "section MODS is missing.");
    EXPECT_EQ(reasonFor([](std::string& bytes) {
                  const auto size = entryOf(bytes, "PROJ") + 8;
                  put(bytes, size, u32At(bytes, size) + 1);
              }),
              "a section is too long.");
    EXPECT_EQ(reasonFor([](std::string& bytes) {
                  const auto size = entryOf(bytes, "STRS") + 8;
                  put(bytes, size, u32At(bytes, size) + 1);
                  bytes += 'x';
              }),
              "the string table is too long.");
    EXPECT_EQ(reasonFor([](std::string& bytes) { bytes[4] = 1; }), "its format is version 1.");
    EXPECT_EQ(reasonFor([](std::string& bytes) { bytes[0] = 'X'; }), "it is not a compiled application.");
}

TEST(Image, NestsControlsToALimit) {
    Image image;
    const auto nest = [&](int depth) {
        Control control{"VB.Frame", "f", Control::kNoIndex, {}, {}};
        for (int i = 0; i < depth; ++i) {
            Control outer{"VB.Frame", "f", Control::kNoIndex, {}, {}};
            outer.children.push_back(std::move(control));
            control = std::move(outer);
        }
        image.forms = {control};
    };
    nest(kDeepestControl);
    EXPECT_EQ(decode(encode(image)), image);
    nest(kDeepestControl + 1);
    const auto err = basic::attempt([&] { encode(image); });
    EXPECT_EQ(err.Description, "The controls of a form are nested too deeply.");
    EXPECT_EQ(err.Source, "QLToolkit");
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
