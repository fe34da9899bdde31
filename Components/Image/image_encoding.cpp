#include "Components/Image/code_sections.h"
#include "Components/Image/image.h"
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"
#include <algorithm>
#include <iterator>
#include <utility>

namespace image {

namespace {

/// Writes a section, which refers to strings by their number in the string table.
struct SectionWriter {
    Strings& strings;
    Writer out;

    void text(const std::string& value) { out.u32(strings.numberOf(value)); }
    void count(std::size_t n) { out.u32(std::uint32_t(n)); }
};

std::string encodeProject(const Image& image, Strings& strings) {
    SectionWriter w{strings, {}};
    w.text(image.compilerVersion);
    w.text(image.projectName);
    w.text(image.startup);
    w.count(image.info.size());
    for (const auto& [key, value] : image.info) {
        w.text(key);
        w.text(value);
    }
    w.count(image.constants.size());
    for (const auto& [name, value] : image.constants) {
        w.text(name);
        w.out.u32(std::uint32_t(value));
    }
    w.count(image.libraries.size());
    for (const auto& library : image.libraries) w.text(library);
    return std::move(w.out).bytes();
}

void encodeControl(SectionWriter& w, const Control& control, int depth) {
    if (depth > kDeepestControl) imageIsRefused("The controls of a form are nested too deeply.");
    w.text(control.className);
    w.text(control.name);
    w.out.u32(std::uint32_t(control.index));
    w.count(control.properties.size());
    for (const auto& property : control.properties) {
        w.text(property.name);
        w.text(property.value);
    }
    w.count(control.children.size());
    for (const auto& child : control.children) encodeControl(w, child, depth + 1);
}

std::string encodeForms(const Image& image, Strings& strings) {
    SectionWriter w{strings, {}};
    w.count(image.forms.size());
    for (const auto& form : image.forms) encodeControl(w, form, 0);
    return std::move(w.out).bytes();
}

void encodeModule(SectionWriter& w, const Module& module) {
    w.out.u8(std::uint8_t(module.kind));
    w.text(module.name);
    w.text(module.file);
    w.out.u32(module.lines);
    w.count(module.members.size());
    for (const auto& member : module.members) {
        w.out.u8(std::uint8_t(member.kind));
        w.out.u8(member.isPublic ? 1 : 0);
        w.text(member.name);
        w.out.u32(member.firstLine);
        w.out.u32(member.parameters);
    }
    w.count(module.strings.size());
    for (const auto& literal : module.strings) w.text(literal);
}

std::string encodeModules(const Image& image, Strings& strings) {
    SectionWriter w{strings, {}};
    w.count(image.modules.size());
    for (const auto& module : image.modules) encodeModule(w, module);
    return std::move(w.out).bytes();
}

/// The code refers to its texts by their numbers, so they are the first of the table.
void addTexts(const CodeImage& code, Strings& strings) {
    for (std::size_t i = 0; i < code.texts.size(); ++i)
        if (strings.numberOf(code.texts[i]) != i) imageIsRefused("A text of the code occurs twice.");
}

std::vector<EncodedSection> sectionsOf(const Image& image) {
    Strings strings;
    addTexts(image.code, strings);
    std::vector<EncodedSection> sections;
    sections.emplace_back(kProject, encodeProject(image, strings));
    sections.emplace_back(kForms, encodeForms(image, strings));
    sections.emplace_back(kModules, encodeModules(image, strings));
    Writer table;
    strings.write(table);
    sections.emplace_back(kStrings, std::move(table).bytes());
    std::ranges::move(encodeCode(image.code), std::back_inserter(sections));
    return sections;
}

constexpr std::size_t aligned(std::size_t offset) {
    return (offset + kSectionAlignment - 1) / kSectionAlignment * kSectionAlignment;
}

std::string bodyOf(const std::vector<EncodedSection>& sections) {
    const auto first = kHeaderSize + sections.size() * kSectionEntrySize;
    std::size_t end = first;
    for (const auto& section : sections) end = aligned(end) + section.second.size();
    if (std::int64_t(end) > kLargestImage) imageIsRefused("The compiled application is too large.");
    Writer body;
    body.reserve(end + kHeaderSize); // which comes before it
    std::size_t offset = first;
    for (const auto& [name, content] : sections) {
        offset = aligned(offset);
        body.raw(name);
        body.u32(std::uint32_t(offset));
        body.u32(std::uint32_t(content.size()));
        offset += content.size();
    }
    offset = first;
    for (const auto& [name, content] : sections) {
        body.raw(std::string(aligned(offset) - offset, '\0'));
        body.raw(content);
        offset = aligned(offset) + content.size();
    }
    return std::move(body).bytes();
}

} // namespace

std::string encode(const Image& image) {
    const auto sections = sectionsOf(image);
    auto file = bodyOf(sections);
    Writer header;
    header.raw(kMagic);
    header.u16(kMajor);
    header.u16(kMinor);
    header.u32(std::uint32_t(kHeaderSize + file.size()));
    header.u32(crc32(file));
    // The checksum does not cover the count of sections; a wrong one shows in the length.
    header.u32(std::uint32_t(sections.size()));
    return file.insert(0, header.bytes());
}

} // namespace image
