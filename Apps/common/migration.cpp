#include "Apps/common/migration.h"
#include "Apps/common/migration_parts.h"
#include "Basic/runtime_error.h"
#include "Host/files/path_lookup.h"
#include "Host/files/text_file.h"
#include <algorithm>
#include <memory>
#include <optional>

namespace apps {

namespace {

using qltoolkit::Lack;

HindranceKind kindOf(Lack lack) {
    switch (lack) {
    case Lack::Declare: return HindranceKind::Declare;
    case Lack::Class: return HindranceKind::Class;
    case Lack::Member: return HindranceKind::Member;
    case Lack::Printing: return HindranceKind::Printing;
    default: return HindranceKind::Function;
    }
}

std::unique_ptr<qltoolkit::SourceText> readText(const std::string& path, const basic::CodePage& page,
                                                Migration& found) {
    host::FileContent content;
    const auto err = basic::attempt([&] { content = host::readFile(path); });
    if (err.Number == 0 && content.bytes.size() <= qltoolkit::kMaxSourceBytes)
        return std::make_unique<qltoolkit::SourceText>(host::absolutePath(path), std::move(content.bytes), page);
    for (auto& each : qltoolkit::failedRead(path, err.Description).diagnostics) found.errors.push_back(std::move(each));
    return nullptr;
}

void addDiagnostic(qltoolkit::Diagnostic& each, const qltoolkit::SourceText& source, Migration& found) {
    if (each.severity == qltoolkit::Severity::Error) return found.errors.push_back(std::move(each));
    // The device has its own list of controls.
    if (each.lack == Lack::None || each.lack == Lack::Control) return;
    const auto codeLine = each.line >= source.codeBegin() ? each.line - source.codeBegin() + 1 : 0;
    found.hindrances.push_back(
        {kindOf(each.lack), each.file, each.line, each.column, codeLine, each.lacking, each.lacking, each.instead});
}

} // namespace

std::string_view headingOf(HindranceKind kind) {
    switch (kind) {
    case HindranceKind::Control: return "Controls";
    case HindranceKind::Component: return "Components";
    case HindranceKind::Reference: return "References";
    case HindranceKind::Declare: return "Declares";
    case HindranceKind::Class: return "Classes";
    case HindranceKind::Function: return "Functions and statements";
    case HindranceKind::Member: return "Properties and methods";
    case HindranceKind::Printing: return "Printing";
    case HindranceKind::Screen: break;
    }
    return "Screen size";
}

std::size_t Migration::count(HindranceKind kind) const {
    return std::size_t(std::ranges::count(hindrances, kind, &Hindrance::kind));
}

Migration migrationOf(const CheckedProject& project, const MigrationDevice& device, DescribedLibraries& libraries,
                      const MigrationProgress& progress) {
    Migration found{
        host::absolutePath(project.path), device.key, project.sources.size(), foreignMembers(project, device), {}};
    const auto total = project.sources.size() + 1;
    std::vector<std::unique_ptr<qltoolkit::SourceText>> sources;
    std::vector<const qltoolkit::SourceText*> texts;
    for (const auto& path : project.sources) {
        if (progress) progress(texts.size(), total);
        auto text = readText(path, project.page.page, found);
        if (!text) continue;
        for (auto& each : foreignControls(*text, device)) found.hindrances.push_back(std::move(each));
        texts.push_back(text.get());
        sources.push_back(std::move(text));
    }
    if (progress) progress(project.sources.size(), total);
    auto program = programOf(project, libraries, texts.size() == project.sources.size());
    program.warnsOfDevices = program.warnsOfDeclares = true;
    auto results = qltoolkit::checkProject(texts, project.constants, program);
    for (std::size_t i = 0; i < results.size(); ++i)
        for (auto& each : results[i].diagnostics) addDiagnostic(each, *texts[i], found);
    // Within a kind they are in the order of the project already.
    std::ranges::stable_sort(found.hindrances, {}, &Hindrance::kind);
    return found;
}

} // namespace apps
