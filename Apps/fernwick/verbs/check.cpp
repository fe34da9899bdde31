#include "Apps/fernwick/checks/project_check.h"
#include "Apps/fernwick/checks/source_list.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/code_page_note.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/output/token_ends.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/runtime_error.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include "Host/files/text_file.h"
#include <chrono>
#include <fmt/format.h>
#include <iostream>
#include <iterator>
#include <optional>
#include <set>
#include <tuple>

namespace cli {

namespace {

struct CheckTotals {
    std::size_t files = 0, errors = 0;
    std::uint64_t lines = 0;
    int status = kGood;
};

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

constexpr std::string_view kStandardInput = "-";

/// Reports what was found in each file, and counts it. A file of several projects is reported once.
class CheckReport {
public:
    CheckReport(const Options& options, Console& console, Report& report)
        : options_(options), console_(console), report_(report) {}

    void add(const std::string& path, qltoolkit::CheckResult result, bool isNamed,
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

    [[nodiscard]] const CheckTotals& totals() const { return totals_; }

private:
    void print(Message message) {
        if (options_.format == Format::Text)
            return console_.err(textOf(message, ""), message.isError ? Tone::Error : Tone::Warning);
        message.file = host::absolutePath(message.file);
        report_.messages.push_back(std::move(message));
    }

    const Options& options_;
    Console& console_;
    Report& report_;
    CheckTotals totals_;
    std::set<std::string> files_;
    std::set<std::tuple<std::string, std::uint32_t, std::uint32_t, int>> reported_;
};

void checkBytes(const std::string& name, std::string bytes, const SourceToCheck& source, Console& console,
                CheckReport& report) {
    const auto detected = host::codePageOfSource(bytes, source.page);
    if (!source.page) reportCodePage(console, name, detected);
    if (bytes.size() > qltoolkit::kMaxSourceBytes)
        return report.add(name, qltoolkit::failedRead(name, ""), source.isNamed, nullptr);
    const qltoolkit::SourceText text{name, std::move(bytes), detected.page};
    report.add(name, qltoolkit::checkSource(text), source.isNamed, &text);
}

void checkOne(const SourceToCheck& source, const Options& options, Console& console, CheckReport& report) {
    if (source.path == kStandardInput)
        return checkBytes(options.sourceName, {std::istreambuf_iterator<char>(std::cin), {}}, source, console, report);
    host::FileContent content;
    const auto err = basic::attempt([&] { content = host::readFile(source.path); });
    if (err.Number != 0) return report.add(source.path, unreadSource(source.path, err), source.isNamed, nullptr);
    checkBytes(source.path, std::move(content.bytes), source, console, report);
}

void checkProjects(const std::vector<apps::CheckedProject>& projects, const Options& options,
                   host::FileContents& contents, CheckReport& report) {
    ProjectCheck check{options, contents};
    for (const auto& project : projects) {
        auto checked = check.check(project);
        for (std::size_t i = 0; i < checked.size(); ++i)
            report.add(project.sources[i], std::move(checked[i].result), false, checked[i].text.get());
    }
}

CheckTotals checkAll(const SourceList& list, const Options& options, host::FileContents& contents, Console& console,
                     Report& report) {
    CheckReport results{options, console, report};
    for (const auto& project : list.projects) reportCodePage(console, project.path, project.page);
    if (!list.projects.empty()) checkProjects(list.projects, options, contents, results);
    for (const auto& source : list.sources) {
        checkInterrupt();
        checkOne(source, options, console, results);
    }
    return results.totals();
}

} // namespace

int runCheck(const Options& options, Console& console) {
    if (!options.migrationDevice.empty()) return runMigration(options, console);
    const auto begin = std::chrono::steady_clock::now();
    auto operands = options.operands;
    if (operands.empty()) operands.push_back(projectArgument(""));
    host::FileContents contents;
    const auto list = listSources(operands, options.codePage, contents);

    Report report;
    report.verb = "check";
    for (const auto& problem : list.problems) {
        report.failure += (report.failure.empty() ? "" : "\n") + problem;
        console.err("fernwick: " + problem, Tone::Error);
    }
    const auto totals = checkAll(list, options, contents, console, report);
    report.exitStatus = std::max(totals.status, list.status);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    report.statusText = fmt::format("{}, {}, {}", plural(totals.files, "file"), plural(totals.lines, "line"),
                                    plural(totals.errors, "error"));
    printDocument(report, options, console);
    if (options.format == Format::Text && options.verbosity != Verbosity::Quiet)
        console.out(fmt::format("{} in {:.2f} s\n", report.statusText, taken.count()));
    return report.exitStatus;
}

} // namespace cli
