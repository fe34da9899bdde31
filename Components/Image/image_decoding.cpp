#include "Components/Image/code_sections.h"
#include "Components/Image/image.h"
#include "Components/Image/image_bytes.h"
#include "Components/Image/image_format.h"

namespace image {

namespace {

/// Reads a section.
struct SectionReader {
    const std::vector<SharedText>& strings;
    Reader in;

    SharedText text() {
        const auto number = in.u32();
        if (number >= strings.size()) imageIsDamaged("a string is missing");
        return strings[number];
    }
    template <class E>
    E kind(E last) {
        const auto value = in.u8();
        if (value > std::uint8_t(last)) imageIsDamaged("an unknown kind");
        return E(value);
    }
    void end() const {
        if (!in.atEnd()) imageIsDamaged("a section is too long");
    }
};

std::vector<SharedText> decodeStrings(std::string_view bytes) {
    Reader in{bytes};
    std::vector<SharedText> texts(in.count(4));
    for (auto& text : texts) text = std::string(in.raw(in.u32()));
    if (!in.atEnd()) imageIsDamaged("the string table is too long");
    return texts;
}

void decodeProject(SectionReader r, Image& image) {
    image.compilerVersion = r.text();
    image.projectName = r.text();
    image.startup = r.text();
    image.info.resize(r.in.count(8));
    for (auto& [key, value] : image.info) {
        key = r.text();
        value = r.text();
    }
    image.constants.resize(r.in.count(8));
    for (auto& [name, value] : image.constants) {
        name = r.text();
        value = std::int32_t(r.in.u32());
    }
    image.libraries.resize(r.in.count(4));
    for (auto& library : image.libraries) library = r.text();
    r.end();
}

Control decodeControl(SectionReader& r, int depth) {
    if (depth > kDeepestControl) imageIsDamaged("controls are nested too deeply");
    Control control;
    control.className = r.text();
    control.name = r.text();
    control.index = std::int32_t(r.in.u32());
    control.properties.resize(r.in.count(8));
    for (auto& property : control.properties) {
        property.name = r.text();
        property.value = r.text();
    }
    const auto children = r.in.count(20);
    control.children.reserve(children);
    for (std::uint32_t i = 0; i < children; ++i) control.children.push_back(decodeControl(r, depth + 1));
    return control;
}

Module decodeModule(SectionReader& r) {
    Module module;
    module.kind = r.kind(ModuleKind::Form);
    module.name = r.text();
    module.file = r.text();
    module.lines = r.in.u32();
    module.members.resize(r.in.count(14));
    for (auto& member : module.members) {
        member.kind = r.kind(MemberKind::Declare);
        member.isPublic = r.in.u8() != 0;
        member.name = r.text();
        member.firstLine = r.in.u32();
        member.parameters = r.in.u32();
    }
    module.strings.resize(r.in.count(4));
    for (auto& literal : module.strings) literal = r.text();
    return module;
}

/// Validates the container and returns the names and bytes of its sections.
std::vector<std::pair<std::string_view, std::string_view>> listedSections(std::string_view bytes) {
    Reader in{bytes};
    if (std::int64_t(bytes.size()) > kLargestImage) imageIsDamaged("it is too large");
    if (in.raw(kMagic.size()) != kMagic) imageIsDamaged("it is not a compiled application");
    const auto major = in.u16();
    if (major != kMajor) imageIsDamaged("its format is version " + std::to_string(major));
    in.u16();
    if (in.u32() != bytes.size()) imageIsDamaged("its length is wrong");
    const auto checksum = in.u32();
    const auto sections = in.u32();
    if (crc32(bytes.substr(kHeaderSize)) != checksum) imageIsDamaged("its checksum is wrong");
    std::vector<std::pair<std::string_view, std::string_view>> found;
    for (std::uint32_t i = 0; i < sections; ++i) {
        const auto name = in.raw(4);
        const std::size_t offset = in.u32(), size = in.u32();
        if (offset > bytes.size() || size > bytes.size() - offset) imageIsDamaged("a section is outside the file");
        found.emplace_back(name, bytes.substr(offset, size));
    }
    return found;
}

Sections sectionsByName(std::string_view bytes) {
    Sections found;
    for (const auto& [name, content] : listedSections(bytes)) found[name] = content;
    return found;
}

} // namespace

Image decode(std::string_view bytes) {
    auto sections = sectionsByName(bytes);
    for (const auto name : {kStrings, kProject, kForms, kModules})
        if (!sections.contains(name)) imageIsDamaged("section " + std::string(name) + " is missing");
    const auto strings = decodeStrings(sections[kStrings]);
    Image image;
    decodeProject({strings, Reader{sections[kProject]}}, image);
    SectionReader forms{strings, Reader{sections[kForms]}};
    for (auto n = forms.in.count(20); n > 0; --n) image.forms.push_back(decodeControl(forms, 0));
    forms.end();
    SectionReader modules{strings, Reader{sections[kModules]}};
    for (auto n = modules.in.count(21); n > 0; --n) image.modules.push_back(decodeModule(modules));
    modules.end();
    image.code = decodeCode(sections, strings);
    return image;
}

std::vector<std::pair<std::string, std::size_t>> sectionSizes(std::string_view bytes) {
    std::vector<std::pair<std::string, std::size_t>> sizes;
    for (const auto& [name, content] : listedSections(bytes)) sizes.emplace_back(name, content.size());
    return sizes;
}

} // namespace image
