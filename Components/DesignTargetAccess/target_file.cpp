#include "Components/DesignTargetAccess/target_data.h"
#include "Components/DesignTargetAccess/toml_reader.h"
#include <algorithm>
#include <cctype>
#include <limits>

namespace designtargetaccess {
namespace {

constexpr std::int64_t kLongest = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kWhite = 0xFFFFFF;

/// Accepts "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}" with hexadecimal digits.
bool isBracedGuid(const std::string& text) {
    static constexpr std::string_view kForm = "{########-####-####-####-############}";
    return std::equal(text.begin(), text.end(), kForm.begin(), kForm.end(), [](char c, char form) {
        return form == '#' ? std::isxdigit(static_cast<unsigned char>(c)) != 0 : c == form;
    });
}

std::string readGuid(TomlReader& from, const char* key) {
    std::string guid = from.text(key);
    if (!isBracedGuid(guid)) from.fail(key, "must be a GUID in braces");
    return guid;
}

void readForm(TomlReader& from, TargetData& target) {
    target.formWidth = from.number("width", -1, kLongest);
    target.formHeight = from.number("height", -1, kLongest);
    target.formColor = from.number("color", 0, kWhite);
}

void readFont(TomlReader& from, TargetData& target) {
    target.fontName = from.text("name");
    target.fontSize = from.number("size", 1, kLongest);
}

/// Templates are copied into users' projects, so they must be inside the installation.
std::string readTemplate(TomlReader& from, const char* key) {
    std::string path = from.optionalText(key);
    if (path.starts_with('/') || path.find("..") != std::string::npos)
        from.fail(key, "must be a path inside the installation");
    return path;
}

void readTemplates(TomlReader& from, TargetTemplates& templates) {
    templates.project = readTemplate(from, "project");
    templates.form = readTemplate(from, "form");
    templates.module = readTemplate(from, "module");
    templates.classModule = readTemplate(from, "class");
}

TargetReference readReference(TomlReader& from) {
    std::string name = from.text("name");
    return {std::move(name), readGuid(from, "guid")};
}

void readReferences(TomlReader& from, TargetData& target) {
    from.tables("required", [&](TomlReader& each) { target.required.push_back(readReference(each)); });
    from.tables("accepted", [&](TomlReader& each) { target.accepted.push_back(readReference(each)); });
    target.modules = from.texts("modules");
    if (!std::all_of(target.modules.begin(), target.modules.end(), isBracedGuid))
        from.fail("modules", "must contain GUIDs in braces");
}

TargetTavlet readTavlet(TomlReader& from) {
    std::string clsid = readGuid(from, "clsid");
    std::string progId = from.text("progid");
    return {std::move(clsid), std::move(progId), from.optionalText("category")};
}

void readTavlets(TomlReader& from, TargetData& target) {
    from.tables("supported", [&](TomlReader& each) { target.tavlets.push_back(readTavlet(each)); });
    target.tabStopOff = from.texts("tab_stop_off");
    from.optionalTable("defaults", [&](TomlReader& defaults) {
        defaults.values("#", [&](const std::string& name, std::string value) {
            target.tavletDefaults.emplace_back(name, std::move(value));
        });
    });
}

TargetData readWhole(TomlReader& from) {
    TargetData target;
    target.order = from.number("order", -kLongest, kLongest);
    target.key = from.text("key");
    target.name = from.text("name");
    target.platform = from.optionalText("platform");
    target.pipe = from.optionalText("pipe");
    target.style = from.number("style", -kLongest, kLongest);
    from.table("form", [&](TomlReader& form) { readForm(form, target); });
    from.table("font", [&](TomlReader& font) { readFont(font, target); });
    from.optionalTable("options", [&](TomlReader& options) {
        options.values("",
                       [&](const std::string& name, std::string value) { target.options[name] = std::move(value); });
    });
    from.optionalTable("templates", [&](TomlReader& templates) { readTemplates(templates, target.templates); });
    from.optionalTable("references", [&](TomlReader& references) { readReferences(references, target); });
    from.optionalTable("tavlets", [&](TomlReader& tavlets) { readTavlets(tavlets, target); });
    from.finish();
    return target;
}

} // namespace

TargetData readTarget(std::string_view text, const std::string& fileName) {
    try {
        const toml::table table = toml::parse(text, fileName);
        TomlReader reader{table, fileName};
        return readWhole(reader);
    } catch (const toml::parse_error& error) {
        throw TargetProblem{fileName, error.source().begin.line, std::string{error.description()}};
    }
}

} // namespace designtargetaccess
