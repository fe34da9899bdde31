#include "Components/Image/image.h"
#include "Components/Image/image_bytes.h"

namespace image {

namespace {

constexpr std::string_view kMagic{"QLX\x1A", 4};
constexpr std::uint16_t kMajor = 1, kMinor = 0;
constexpr std::size_t kHeaderSize = 20;
constexpr std::size_t kSectionEntrySize = 12;
constexpr int kDeepestControl = 200;
constexpr std::string_view kStrings = "STRS", kProject = "PROJ", kForms = "FORM", kModules = "MODS";

// ---- encoding: every section writes its texts as numbers of the string table --------------------------------

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

void encodeControl(SectionWriter& w, const Control& control) {
    w.text(control.className);
    w.text(control.name);
    w.out.u32(std::uint32_t(control.index));
    w.count(control.properties.size());
    for (const auto& property : control.properties) {
        w.text(property.name);
        w.text(property.value);
    }
    w.count(control.children.size());
    for (const auto& child : control.children) encodeControl(w, child);
}

std::string encodeForms(const Image& image, Strings& strings) {
    SectionWriter w{strings, {}};
    w.count(image.forms.size());
    for (const auto& form : image.forms) encodeControl(w, form);
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

// ---- decoding -------------------------------------------------------------------------------------------------

struct SectionReader {
    const std::vector<std::string>& strings;
    Reader in;

    std::string text() {
        const auto number = in.u32();
        if (number >= strings.size()) imageIsDamaged("a text is missing");
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

std::vector<std::string> decodeStrings(std::string_view bytes) {
    Reader in{bytes};
    std::vector<std::string> texts(in.count(4));
    for (auto& text : texts) text = in.raw(in.u32());
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

/// The bytes of each section by its name, checked.
std::unordered_map<std::string, std::string_view> sectionsOf(std::string_view bytes) {
    Reader in{bytes};
    if (in.raw(kMagic.size()) != kMagic) imageIsDamaged("it is no compiled application");
    const auto major = in.u16();
    if (major != kMajor) imageIsDamaged("its format is version " + std::to_string(major));
    in.u16();
    if (in.u32() != bytes.size()) imageIsDamaged("its length is wrong");
    const auto checksum = in.u32();
    const auto sections = in.u32();
    if (crc32(bytes.substr(kHeaderSize)) != checksum) imageIsDamaged("its checksum is wrong");
    std::unordered_map<std::string, std::string_view> found;
    for (std::uint32_t i = 0; i < sections; ++i) {
        const std::string name(in.raw(4));
        const std::size_t offset = in.u32(), size = in.u32();
        if (offset > bytes.size() || size > bytes.size() - offset) imageIsDamaged("a section lies outside");
        found[name] = bytes.substr(offset, size);
    }
    return found;
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
    std::size_t offset = kHeaderSize + sections.size() * kSectionEntrySize;
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
    // the count of sections stands before the checked bytes and is checked by the length of what follows
    file.u32(std::uint32_t(sections.size()));
    file.raw(body.bytes());
    return file.bytes();
}

Image decode(std::string_view bytes) {
    auto sections = sectionsOf(bytes);
    for (const auto name : {kStrings, kProject, kForms, kModules})
        if (!sections.contains(std::string(name))) imageIsDamaged("section " + std::string(name) + " is missing");
    const auto strings = decodeStrings(sections[std::string(kStrings)]);
    Image image;
    decodeProject({strings, Reader{sections[std::string(kProject)]}}, image);
    SectionReader forms{strings, Reader{sections[std::string(kForms)]}};
    for (auto n = forms.in.count(20); n > 0; --n) image.forms.push_back(decodeControl(forms, 0));
    forms.end();
    SectionReader modules{strings, Reader{sections[std::string(kModules)]}};
    for (auto n = modules.in.count(21); n > 0; --n) image.modules.push_back(decodeModule(modules));
    modules.end();
    return image;
}

} // namespace image
