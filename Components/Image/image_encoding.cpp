#include "Components/Image/image.h"
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"

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
    return w.out.bytes();
}

[[noreturn]] void exceedsLimits(const char* reason) {
    throw basic::RuntimeError(kInvalidFileFormat, reason, "QLToolkit");
}

void encodeControl(SectionWriter& w, const Control& control, int depth) {
    if (depth > kDeepestControl) exceedsLimits("The controls of a form are nested too deeply.");
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
    return w.out.bytes();
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
    return w.out.bytes();
}

} // namespace

std::string encode(const Image& image) {
    Strings strings;
    std::vector<std::pair<std::string_view, std::string>> sections;
    sections.emplace_back(kProject, encodeProject(image, strings));
    sections.emplace_back(kForms, encodeForms(image, strings));
    sections.emplace_back(kModules, encodeModules(image, strings));
    Writer table;
    strings.write(table);
    sections.emplace_back(kStrings, table.bytes());

    Writer body;
    std::size_t offset = kHeaderSize + sections.size() * kSectionEntrySize, size = offset;
    for (const auto& section : sections) size += section.second.size();
    if (std::int64_t(size) > kLargestImage) exceedsLimits("The compiled application is too large.");
    for (const auto& [name, content] : sections) {
        body.raw(name);
        body.u32(std::uint32_t(offset));
        body.u32(std::uint32_t(content.size()));
        offset += content.size();
    }
    for (const auto& section : sections) body.raw(section.second);

    Writer file;
    file.raw(kMagic);
    file.u16(kMajor);
    file.u16(kMinor);
    file.u32(std::uint32_t(offset));
    file.u32(crc32(body.bytes()));
    // The checksum does not cover the count of sections; a wrong one shows in the length.
    file.u32(std::uint32_t(sections.size()));
    file.raw(body.bytes());
    return file.bytes();
}

} // namespace image
