#include "Basic/runtime_error.h"
#include "Components/Image/image.h"
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"
#include "tests/image_code/code_parts.h"
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace code_parts;
using image::Image;
using image::kHeaderSize;
using image::kSectionEntrySize;

/// Every part of the code has something to write.
CodeImage everything() {
    CodeImage code;
    addProcedure(code, {"Main",
                        {kLong, kText, kVariant},
                        0,
                        image::kNoSlot,
                        {image::encodeWide(Op::LoadShort, 0, 7), image::encode(Op::Return)}});
    addProcedure(code, {"Square", {kDouble}, 1, 0});
    addProcedure(code, {"Class_Initialize", {object(1)}, 1});
    code.procedures[0].lines = {{0, 12}, {1, 14}};
    code.procedures[0].statements = {0, 1};
    code.procedures[0].variables[1].isTemporary = true;
    code.procedures[2].lines = {{0, 3}};
    code.numbers = {0x400921FB54442D18, 0xFFFFFFFFFFFFFFFF};
    code.records = {
        {{{{BaseType::Integer}, image::kNone, 0}, {arrayOf({BaseType::Byte}), 0, 0}, {kText, image::kNone, 20}}}};
    code.arrays = {{{BaseType::Byte}, 0, {{-1, 1}, {0, 9}}}};
    code.globals = {{record(0)}, {object(1), true}};
    code.modules = {{textOf(code, "Module1"), textOf(code, "Module1.bas"), image::kNone}};
    code.imports = {{textOf(code, "Left"), kText, {kText, kLong}}};
    auto& stack = code.classes.emplace_back();
    stack.name = textOf(code, "Stack");
    stack.fields = {{kLong}, {object(1)}};
    stack.members = {{textOf(code, "Push"),
                      image::MemberUse::Let,
                      false,
                      1,
                      {{BaseType::Integer, textOf(code, "Index"), true, {BaseType::Double, 0x123456789ABCDEF0}},
                       {BaseType::Variant}},
                      BaseType::Long,
                      true}};
    stack.implementations = {{1, {2, image::kNone}}};
    stack.events = {{textOf(code, "Changed"), {kLong, referenceTo(kText)}}};
    stack.sinks = {{1, 1, {{0, 2}}}};
    stack.initialize = 2;
    stack.predeclared = 1;
    code.start = 0;
    code.codePage = 932;
    code.resources = {{"#10", "#1", "abc"}, {"#10", "NAME", ""}, {"TYPE", "#1", std::string(1000, '\0')}};
    return code;
}

Image imageWith(CodeImage code) {
    Image image;
    image.projectName = "Tip";
    image.modules.emplace_back().strings = {"Main", "other"};
    image.code = std::move(code);
    return image;
}

std::uint32_t u32At(const std::string& bytes, std::size_t at) {
    image::Reader in{std::string_view(bytes).substr(at)};
    return in.u32();
}
void put(std::string& bytes, std::size_t at, std::uint32_t value) {
    image::Writer out;
    out.u32(value);
    bytes.replace(at, 4, out.bytes());
}
std::size_t entryOf(const std::string& bytes, std::string_view name) { return bytes.find(name, kHeaderSize); }
std::size_t beginOf(const std::string& bytes, std::string_view name) { return u32At(bytes, entryOf(bytes, name) + 4); }
std::size_t sizeOf(const std::string& bytes, std::string_view name) { return u32At(bytes, entryOf(bytes, name) + 8); }

/// The reason for refusing an image after a change that its length and checksum allow.
std::string reasonFor(const std::function<void(std::string& bytes)>& change) {
    auto bytes = image::encode(imageWith(everything()));
    change(bytes);
    put(bytes, 12, image::crc32(std::string_view(bytes).substr(kHeaderSize)));
    const auto err = basic::attempt([&] { image::decode(bytes); });
    EXPECT_EQ(err.Number, 321);
    return err.Description;
}
std::string reasonAfter(std::string_view section, std::size_t at, std::uint32_t value) {
    return reasonFor([=](std::string& bytes) { put(bytes, beginOf(bytes, section) + at, value); });
}

/// Where an image with this change has another byte.
std::size_t placeOf(const std::function<void(CodeImage& code)>& change) {
    auto code = everything();
    change(code);
    const auto bytes = image::encode(imageWith(everything())), changed = image::encode(imageWith(code));
    const auto differs = std::mismatch(bytes.begin() + kHeaderSize, bytes.end(), changed.begin() + kHeaderSize);
    return std::size_t(differs.first - bytes.begin());
}

std::string whyRefused(const std::function<void(CodeImage& code)>& change) {
    auto code = everything();
    change(code);
    const auto err = basic::attempt([&] { image::encode(imageWith(code)); });
    EXPECT_EQ(err.Number, 321);
    return err.Description;
}

} // namespace

TEST(CodeFormat, SurvivesARoundTrip) {
    const auto image = imageWith(everything());
    EXPECT_EQ(image::decode(image::encode(image)), image);
    EXPECT_EQ(image::encode(image::decode(image::encode(image))), image::encode(image));
}

TEST(CodeFormat, HasNoSectionsWithoutCode) {
    const auto bytes = image::encode(imageWith({}));
    EXPECT_EQ(u32At(bytes, 16), 4u);
    EXPECT_EQ(image::decode(bytes), imageWith({}));
}

TEST(CodeFormat, AlignsItsSections) {
    const auto bytes = image::encode(imageWith(everything()));
    ASSERT_EQ(u32At(bytes, 16), 4 + std::size(image::kCodeSections) + 1);
    for (std::size_t i = 0; i < u32At(bytes, 16); ++i)
        EXPECT_EQ(u32At(bytes, kHeaderSize + i * kSectionEntrySize + 4) % 8, 0u);
    EXPECT_EQ(sizeOf(bytes, "CODE"), 3 + 3 * 1u);
    EXPECT_EQ(sizeOf(bytes, "CONS"), 2 * 8u);
}

TEST(CodeFormat, SharesItsTextsWithTheRest) {
    const auto bytes = image::encode(imageWith(everything()));
    EXPECT_EQ(bytes.find("Main"), bytes.rfind("Main"));
}

/// Two lines without code between them and long jumps backward and forward are rare but possible.
TEST(CodeFormat, NeedsOneByteForMostLines) {
    CodeImage code;
    addProcedure(code, {"Main", {}, 0, image::kNoSlot, std::vector<std::uint32_t>(1000, image::encode(Op::Return))});
    auto& lines = code.procedures[0].lines;
    for (std::uint32_t i = 0; i < 300; ++i) lines.push_back({i * 3, 100 + i});
    auto bytes = image::encode(imageWith(code));
    EXPECT_LE(sizeOf(bytes, "LINE"), 300 + 10u);
    lines = {{0, 4'000'000'000}, {1, 1}, {2, 8}, {3, 14}, {38, 14}, {74, 14}, {999, 0}};
    code.procedures[0].statements = {0, 200, 201, 999};
    EXPECT_EQ(image::decode(image::encode(imageWith(code))).code, code);
}

TEST(CodeFormat, NamesTheReasonForRefusingIt) {
    const std::string damaged = "The compiled file is damaged: ";
    EXPECT_EQ(reasonAfter("GLOB", 0, 99), damaged + "a string is missing.");
    EXPECT_EQ(reasonAfter("GLOB", 12, 0xFFFFFF), damaged + "a count is larger than the file.");
    EXPECT_EQ(reasonAfter("TYPE", 8, 14), damaged + "an unknown kind.");
    EXPECT_EQ(reasonAfter("TYPE", 8, 0x400), damaged + "an unknown kind.");
    EXPECT_EQ(reasonAfter("PROC", 4 + 8, 5), damaged + "code is missing.");
    EXPECT_EQ(reasonAfter("PROC", 4 + 8, 1), damaged + "the code is too long.");
    EXPECT_EQ(reasonFor([](std::string& bytes) { bytes[entryOf(bytes, "IMPT")] = 'X'; }),
              damaged + "section IMPT is missing.");
    const auto grow = [](const char* section, int by) {
        return [=](std::string& bytes) {
            put(bytes, entryOf(bytes, section) + 8, std::uint32_t(int(sizeOf(bytes, section)) + by));
        };
    };
    for (const auto* section : {"GLOB", "TYPE", "CLAS", "PROC", "CONS", "IMPT", "LINE"})
        EXPECT_EQ(reasonFor(grow(section, 1)), damaged + "a section is too long.") << section;
    for (const auto* section : {"GLOB", "TYPE", "CLAS", "PROC", "IMPT", "LINE", "STMT"})
        EXPECT_EQ(reasonFor(grow(section, -1)), damaged + "a count is larger than the file.") << section;
}

TEST(CodeFormat, RefusesUnknownKindsOfMembers) {
    const auto with = [](char value, const std::function<void(image::ClassMember & member)>& change) {
        const auto at = placeOf([&](auto& code) { change(code.classes[0].members[0]); });
        return reasonFor([=](std::string& bytes) { bytes[at] = value; });
    };
    const std::string unknown = "The compiled file is damaged: an unknown kind.";
    const auto afterLast = char(std::uint8_t(image::MemberUse::Field) + 1);
    EXPECT_EQ(with(afterLast, [](auto& member) { member.use = image::MemberUse::Get; }), unknown);
    EXPECT_EQ(with(4, [](auto& member) { member.isPublic = true; }), unknown);
    EXPECT_EQ(with(2, [](auto& member) { member.parameters[0].isOptional = false; }), unknown);
}

TEST(CodeFormat, RefusesDamagedLines) {
    const auto lines = [](std::initializer_list<std::uint8_t> list) {
        return reasonFor([&](std::string& bytes) {
            std::copy(list.begin(), list.end(), bytes.begin() + std::ptrdiff_t(beginOf(bytes, "LINE")));
        });
    };
    const std::string damaged = "The compiled file is damaged: ";
    EXPECT_EQ(lines({1, 3, 1, 0}), damaged + "a procedure is missing.");
    EXPECT_EQ(lines({1, 0, 90}), damaged + "a count is larger than the file.");
    EXPECT_EQ(lines({1, 0, 2, 1, 1}), damaged + "the lines of a procedure are not in order.");
    EXPECT_EQ(lines({1, 0, 1, 14}), damaged + "the lines of a procedure are not in order.");
    EXPECT_EQ(lines({0xFF, 0xFF, 0xFF, 0xFF, 0xFF}), damaged + "a number is too large.");
}

TEST(CodeFormat, FindsResourcesByTypeAndName) {
    const auto resources = everything().resources;
    ASSERT_TRUE(image::findResource(resources, "#10", "#1"));
    EXPECT_EQ(image::findResource(resources, "#10", "#1")->data, "abc");
    EXPECT_EQ(image::findResource(resources, "TYPE", "#1")->data.size(), 1000u);
    for (const auto& [type, name] : {std::pair{"#10", "#2"}, {"#11", "#1"}, {"#1", "#1"}, {"TYPE", "NAME"}, {"", ""}})
        EXPECT_FALSE(image::findResource(resources, type, name)) << type << name;
    EXPECT_FALSE(image::findResource({}, "#10", "#1"));
}

TEST(CodeFormat, RefusesResourcesThatAreNotInOrder) {
    const std::string damaged = "The compiled file is damaged: ";
    const auto nameOfFirst = 4 + 4 + 3 + 4; // after the count, the type and the length of the name
    const auto renamed = [&](std::string_view name) {
        return reasonFor([&](std::string& bytes) {
            const auto at = bytes.find("NAME", beginOf(bytes, "RESO"));
            bytes.replace(at, name.size(), name);
        });
    };
    EXPECT_EQ(renamed("!AME"), damaged + "the resources are not in order.");
    const auto wrongLength = [&](std::uint32_t length) { return reasonAfter("RESO", nameOfFirst - 4, length); };
    EXPECT_NE(wrongLength(0xFFFFFFFF), "");
    EXPECT_NE(wrongLength(3), "");
    EXPECT_EQ(reasonAfter("RESO", 0, 2), damaged + "a section is too long.");
    EXPECT_EQ(reasonAfter("RESO", 0, 0x10000000), damaged + "a count is larger than the file.");
    for (const auto& wrong :
         {std::vector<image::Resource>{{"B", "A", ""}, {"A", "A", ""}}, {{"A", "A", ""}, {"A", "A", "x"}}})
        EXPECT_EQ(whyRefused([&](CodeImage& code) { code.resources = wrong; }), "The resources are not in order.");
}

TEST(CodeFormat, RefusesToWriteWhatCannotBeRead) {
    EXPECT_EQ(whyRefused([](CodeImage& code) { code.texts.push_back("Main"); }), "A text of the code occurs twice.");
    EXPECT_EQ(whyRefused([](CodeImage& code) { code.procedures[1].code = 0; }),
              "The code of the procedures is not in their order.");
    EXPECT_EQ(whyRefused([](CodeImage& code) { code.code.push_back(0); }),
              "The code has words that belong to no procedure.");
    EXPECT_EQ(whyRefused([](CodeImage& code) { code.globals.push_back({object(65536)}); }),
              "The application has too many classes or records.");
    EXPECT_EQ(whyRefused([](CodeImage& code) { code.imports[0].result = object(65536); }),
              "The application has too many classes or records.");
    for (const auto& lines : {std::vector<image::LineStart>{{1, 1}, {1, 2}}, {{2, 1}}})
        EXPECT_EQ(whyRefused([&](CodeImage& code) { code.procedures[0].lines = lines; }),
                  "The lines of a procedure are not in order.");
}

TEST(CodeFormat, RefusesEveryTruncation) {
    const auto bytes = image::encode(imageWith(everything()));
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        auto shorter = bytes.substr(0, length);
        if (length >= kHeaderSize) {
            put(shorter, 8, std::uint32_t(length));
            put(shorter, 12, image::crc32(std::string_view(shorter).substr(kHeaderSize)));
        }
        EXPECT_EQ(basic::attempt([&] { image::decode(shorter); }).Number, 321) << length;
    }
}
