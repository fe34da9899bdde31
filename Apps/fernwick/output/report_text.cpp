#include "Apps/fernwick/output/report.h"
#include <fmt/format.h>

namespace cli {

std::string_view severityOf(const Message& message) {
    if (!message.isKnown) return "unknown";
    return message.isError ? "error" : "warning";
}

std::string textOf(const Message& message, const std::string& project) {
    std::string place = message.file.empty() ? project : message.file;
    if (message.line > 0) place += fmt::format(":{}", message.line);
    return fmt::format("{}: {} {}: {}", place, severityOf(message), message.number, message.text);
}

void printMessages(const std::vector<Message>& messages, const std::string& project, Console& console) {
    for (const auto& message : messages)
        console.err(textOf(message, project), message.isError ? Tone::Error : Tone::Warning);
}

void printDocument(const Report& report, const Options& options, Console& console) {
    if (options.format == Format::Json) console.out(jsonOf(report));
    if (options.format == Format::Sarif) console.out(sarifOf(report, options.sourceRoot));
}

bool printFormatted(const Report& report, const Options& options, Console& console) {
    if (!report.failure.empty()) console.err("fernwick: " + report.failure, Tone::Error);
    printDocument(report, options, console);
    return options.format != Format::Text;
}

void printReport(const Report& report, const Options& options, Console& console) {
    if (printFormatted(report, options, console)) return;
    printMessages(report.messages, report.project, console);
    if (options.verbosity == Verbosity::Quiet) {
        if (!report.image.empty()) console.out(report.image + "\n");
        return;
    }
    if (!report.statusText.empty()) console.out(report.statusText + "\n");
    if (!report.image.empty()) console.out("Image: " + report.image + "\n");
}

} // namespace cli
