#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/code_page_note.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/output/token_ends.h"
#include "Apps/fernwick/run/interruption.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/stored/source_check.h"
#include "Apps/fernwick/verbs/source_list.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/runtime_error.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include "Host/files/text_file.h"
#include <chrono>
#include <fmt/format.h>
#include <iostream>
#include <iterator>

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

struct CheckedSource {
    qltoolkit::CheckResult result;
    std::vector<Message> messages;
};

CheckedSource checked(qltoolkit::CheckResult result) {
    CheckedSource source{std::move(result), {}};
    for (const auto& diagnostic : source.result.diagnostics) source.messages.push_back(messageOfDiagnostic(diagnostic));
    return source;
}

CheckedSource checkBytes(const std::string& name, const std::string& bytes, const SourceToCheck& source,
                         Console& console) {
    const auto detected = host::codePageOfSource(bytes, source.page);
    if (!source.page) reportCodePage(console, name, detected);
    auto file = checked(qltoolkit::checkSource(name, bytes, source.constants, detected.page));
    if (file.messages.empty()) return file;
    const TokenEnds ends{bytes, detected.page};
    for (auto& message : file.messages) message.endColumn = ends.endColumn(message.line, message.column);
    return file;
}

CheckedSource checkOne(const SourceToCheck& source, const Options& options, Console& console) {
    if (source.path == kStandardInput)
        return checkBytes(options.sourceName, {std::istreambuf_iterator<char>(std::cin), {}}, source, console);
    host::FileContent content;
    const auto err = basic::attempt([&] { content = host::readFile(source.path); });
    if (err.Number != 0) return checked(unreadSource(source.path, err));
    return checkBytes(source.path, content.bytes, source, console);
}

CheckTotals checkAll(const SourceList& list, const Options& options, Console& console, Report& report) {
    CheckTotals totals;
    for (const auto& [project, page] : list.projects) reportCodePage(console, project, page);
    for (const auto& source : list.sources) {
        checkInterrupt();
        auto [result, messages] = checkOne(source, options, console);
        console.detail(fmt::format("read {}: {}", source.path, plural(result.lines, "line")));
        ++totals.files;
        totals.lines += result.lines;
        totals.errors += result.errors;
        for (const auto& diagnostic : result.diagnostics)
            totals.status = std::max(totals.status, statusOfDiagnostic(diagnostic, source.isNamed));
        for (auto& message : messages) {
            if (options.format == Format::Text) {
                console.err(textOf(message, ""), message.isError ? Tone::Error : Tone::Warning);
            } else {
                message.file = host::absolutePath(message.file);
                report.messages.push_back(std::move(message));
            }
        }
    }
    return totals;
}

} // namespace

int runCheck(const Options& options, Console& console) {
    const auto begin = std::chrono::steady_clock::now();
    auto operands = options.operands;
    if (operands.empty()) operands.push_back(projectArgument(""));
    const auto list = listSources(operands, options.codePage);

    Report report;
    report.verb = "check";
    for (const auto& problem : list.problems) {
        report.failure += (report.failure.empty() ? "" : "\n") + problem;
        console.err("fernwick: " + problem, Tone::Error);
    }
    const auto totals = checkAll(list, options, console, report);
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
