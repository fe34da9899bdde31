#include "Apps/common/file_names.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/verbs/project_info.h"
#include <fmt/format.h>

namespace cli {

namespace {

std::string projectLine(const ProjectInfo& info) {
    if (!info.isFernwick) return "no";
    return fmt::format("version {}, {}", info.projectVersion,
                       info.device.empty() ? "no device" : "device " + info.device);
}

std::string componentLines(const ProjectInfo& info) {
    const auto folder = apps::folderOf(info.file) + "/";
    std::size_t kind = 0, name = 0;
    for (const auto& one : info.components) {
        kind = std::max(kind, one.kind.size());
        name = std::max(name, one.name.size());
    }
    std::string text;
    for (const auto& one : info.components)
        text += fmt::format("  {:<{}}  {:<{}}  {:>7} lines  {}\n", one.kind, kind, one.name, name, one.lines,
                            one.file.starts_with(folder) ? one.file.substr(folder.size()) : one.file);
    return text;
}

std::string referenceLines(const ProjectInfo& info) {
    std::string text;
    for (const auto& one : info.references)
        if (!one.builtIn)
            text += fmt::format("  {}  {} {}{}\n    {}\n", one.name, one.guid, one.version,
                                one.broken ? "  BROKEN" : "", one.path);
    return text;
}

std::string stepLines(const char* heading, const std::vector<std::string>& steps) {
    if (steps.empty()) return {};
    std::string text = heading;
    for (const auto& step : steps) text += fmt::format("  {}\n", step);
    return text;
}

std::string countLine(const ProjectInfo& info) {
    const auto broken = brokenReferencesOf(info);
    return fmt::format("{}, {}, {}{}\n", plural(info.components.size(), "component"),
                       plural(codeLinesOf(info), "code line"), plural(info.references.size(), "reference"),
                       broken > 0 ? fmt::format(", {} broken", broken) : "");
}

} // namespace

std::string textOfInfo(const ProjectInfo& info) {
    std::string text = fmt::format("{}\n", info.name);
    const auto row = [&](const char* label, const std::string& value) {
        if (!value.empty()) text += fmt::format("  {:<10}  {}\n", label, value);
    };
    row("file", info.file);
    row("type", info.type);
    row("title", info.title);
    row("version", info.version);
    row("start-up", info.startup);
    row("Fernwick", projectLine(info));
    if (!info.components.empty()) text += "Components\n" + componentLines(info);
    if (const auto references = referenceLines(info); !references.empty()) text += "References\n" + references;
    text += stepLines("Steps before a compile\n", info.preCompileSteps);
    text += stepLines("Steps after a compile\n", info.postCompileSteps);
    return text + countLine(info);
}

} // namespace cli
