#include "Apps/fernwick/checks/check_report.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/output/token_ends.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Host/files/path_lookup.h"
#include <algorithm>
#include <fmt/format.h>
#include <optional>

namespace cli {

namespace {

/// An error that is a mistake on the command line or the system's trouble is not one of the project.
int statusOfDiagnostic(const qltoolkit::Diagnostic& diagnostic, bool isNamed) {
    if (diagnostic.severity != qltoolkit::Severity::Error) return kGood;
    if (!isNamed) return kProjectErrors;
    switch (qltoolkit::Message(diagnostic.number)) {
    case qltoolkit::Message::FileMissing:
    case qltoolkit::Message::FileIsFolder: return kWrongUse;
    case qltoolkit::Message::FileUnreadable: return kMachineTrouble;
    default: return kProjectErrors;
    }
}

} // namespace

void CheckReport::add(const std::string& path, qltoolkit::CheckResult result, bool isNamed,
                      const qltoolkit::SourceText* source) {
    console_.detail(fmt::format("read {}: {}", path, plural(result.lines, "line")));
    if (files_.insert(path).second) {
        ++totals_.files;
        totals_.lines += result.lines;
    }
    std::optional<TokenEnds> ends;
    for (const auto& diagnostic : result.diagnostics) {
        const auto place = std::tuple(diagnostic.file, diagnostic.line, diagnostic.column, diagnostic.number);
        if (!reported_.insert(place).second) continue;
        totals_.errors += diagnostic.severity == qltoolkit::Severity::Error;
        totals_.status = std::max(totals_.status, statusOfDiagnostic(diagnostic, isNamed));
        auto message = messageOfDiagnostic(diagnostic);
        if (source && !ends) ends.emplace(source->text(0, source->size()), source->codePage());
        if (ends) message.endColumn = ends->endColumn(message.line, message.column);
        print(std::move(message));
    }
}

void CheckReport::add(const apps::CheckedProject& project, CheckedFiles files) {
    for (std::size_t i = 0; i < project.sources.size(); ++i)
        add(project.sources[i], std::move(files.sources[i].result), false, files.sources[i].text.get());
    if (!files.resourceFile.diagnostics.empty())
        add(project.resourceFile, std::move(files.resourceFile), false, nullptr);
}

void CheckReport::print(Message message) {
    if (options_.format == Format::Text)
        return console_.err(textOf(message, ""), message.isError ? Tone::Error : Tone::Warning);
    message.file = host::absolutePath(message.file);
    report_.messages.push_back(std::move(message));
}

} // namespace cli
