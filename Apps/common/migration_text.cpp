#include "Apps/common/migration_text.h"
#include "Apps/common/wrapped_text.h"
#include <filesystem>
#include <fmt/format.h>

namespace apps {

namespace {

constexpr std::size_t kWidth = 80;

/// Wraps the text and indents each of its lines.
std::string indented(std::string_view text, std::size_t indent) {
    const std::string blanks(indent, ' ');
    std::string lines = blanks;
    for (const char c : wrapped(text, kWidth - indent)) {
        lines += c;
        if (c == '\n') lines += blanks;
    }
    return lines + "\n";
}

std::string countsOf(const Migration& migration) {
    std::string counts;
    for (const auto kind : kHindranceKinds)
        if (const auto count = migration.count(kind); count > 0)
            counts += fmt::format("{}{} {}", counts.empty() ? "" : ", ", headingOf(kind), count);
    return counts;
}

} // namespace

std::string shortPath(const Migration& migration, const std::string& path) {
    const auto folder = std::filesystem::path(migration.project).parent_path();
    const auto relative = std::filesystem::path(path).lexically_relative(folder);
    return relative.empty() ? path : relative.string();
}

std::string summaryOf(const Migration& migration) {
    const auto count = migration.hindrances.size();
    const auto name = std::filesystem::path(migration.project).filename().string();
    if (count == 0) return fmt::format("{} on {}: nothing to change", name, migration.device);
    return fmt::format("{} on {}: {} place{} to change", name, migration.device, count, count == 1 ? "" : "s");
}

std::string textOf(const Migration& migration) {
    auto text = summaryOf(migration) + "\n";
    if (!migration.hindrances.empty()) text += indented(countsOf(migration), 2);
    if (!migration.errors.empty())
        text += indented("The check found errors, so the code may contain further places.", 2);
    const Hindrance* last = nullptr;
    for (const auto& each : migration.hindrances) {
        if (!last || last->kind != each.kind)
            text += fmt::format("\n{}: {}\n", headingOf(each.kind), migration.count(each.kind));
        text += fmt::format("  {}:{}: {}\n", shortPath(migration, each.file), each.line, each.name);
        text += indented(each.instead, 6);
        last = &each;
    }
    return text;
}

} // namespace apps
