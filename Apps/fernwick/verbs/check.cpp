#include "Apps/fernwick/checks/check_report.h"
#include "Apps/fernwick/checks/clean_checks.h"
#include "Apps/fernwick/checks/project_check.h"
#include "Apps/fernwick/checks/source_list.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/code_page_note.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/runtime_error.h"
#include "Host/files/project_code_page.h"
#include "Host/files/text_file.h"
#include <chrono>
#include <fmt/format.h>
#include <iostream>
#include <iterator>

namespace cli {

namespace {

constexpr std::string_view kStandardInput = "-";

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

/// The lines of each source; nothing if there is something to report.
std::optional<std::vector<std::uint32_t>> cleanLinesOf(const CheckedFiles& files) {
    if (!files.resourceFile.diagnostics.empty()) return std::nullopt;
    std::vector<std::uint32_t> lines;
    for (const auto& [result, text] : files.sources) {
        if (!result.diagnostics.empty()) return std::nullopt;
        lines.push_back(result.lines);
    }
    return lines;
}

CheckedFiles cleanFiles(const std::vector<std::uint32_t>& lines) {
    CheckedFiles files;
    for (const auto count : lines) files.sources.push_back({{{}, 0, count}, nullptr});
    return files;
}

void checkProjects(const std::vector<ProjectToCheck>& projects, const Options& options, host::FileContents& contents,
                   const CleanChecks& clean, CheckReport& report) {
    ProjectCheck check{options, contents};
    for (const auto& [project, cleanLines] : projects) {
        auto files = cleanLines ? cleanFiles(*cleanLines) : check.check(project);
        if (!cleanLines)
            if (const auto lines = cleanLinesOf(files)) clean.store(project, *lines);
        report.add(project, std::move(files));
    }
}

CheckTotals checkAll(const SourceList& list, const Options& options, host::FileContents& contents,
                     const CleanChecks& clean, Console& console, Report& report) {
    CheckReport results{options, console, report};
    for (const auto& [project, cleanLines] : list.projects) reportCodePage(console, project.path, project.page);
    if (!list.projects.empty()) checkProjects(list.projects, options, contents, clean, results);
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
    const CleanChecks clean{options};
    const auto list = listSources(operands, options.codePage, contents, &clean);

    Report report;
    report.verb = "check";
    for (const auto& problem : list.problems) {
        report.failure += (report.failure.empty() ? "" : "\n") + problem;
        console.err("fernwick: " + problem, Tone::Error);
    }
    const auto totals = checkAll(list, options, contents, clean, console, report);
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
