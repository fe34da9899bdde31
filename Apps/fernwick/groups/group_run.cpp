#include "Apps/fernwick/groups/group_run.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/groups/output_clash.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Basic/runtime_error.h"
#include "Host/files/native_path.h"
#include <algorithm>
#include <filesystem>

namespace cli {

namespace {

/// Trouble with the machine outweighs everything else.
int worse(int a, int b) { return a == kMachineTrouble || b == kMachineTrouble ? kMachineTrouble : std::max(a, b); }

std::string outcomesOfDevices(const Report& report) {
    std::string text;
    for (const auto& outcome : report.devices)
        text += fmt::format("{}{}: {}", text.empty() ? "" : ", ", outcome.device,
                            outcome.good ? "done" : "failed: " + outcome.reason);
    return text;
}

std::string closingText(const Report& report) {
    if (!report.failure.empty()) return report.failure;
    return report.devices.empty() ? report.statusText : outcomesOfDevices(report);
}

/// A fault of the group, not of the command line.
void requireProject(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored)) throw Refusal(kProjectErrors, path + ": file not found");
    if (!apps::hasExtension(path, ".vbp")) throw Refusal(kProjectErrors, path + ": is not a project");
}

Report memberReport(const Options& options, Console& console, RunProject run) {
    Report failed;
    failed.verb = options.verb;
    failed.project = options.project;
    try {
        requireProject(options.project);
        return run(options, console);
    } catch (const Refusal& refusal) {
        failed.exitStatus = refusal.status();
        failed.failure = refusal.what();
    } catch (const basic::RuntimeError& error) {
        failed.exitStatus = kMachineTrouble;
        failed.failure = error.Description;
    }
    return failed;
}

/// With the project as the place of messages that have no file.
std::vector<Message> messagesOf(const Report& report) {
    auto messages = report.messages;
    for (const auto& device : report.devices)
        messages.insert(messages.end(), device.messages.begin(), device.messages.end());
    for (auto& message : messages)
        if (message.file.empty()) message.file = report.project;
    return messages;
}

void printMember(const Report& report, const Options& options, Console& console) {
    printMessages(messagesOf(report), report.project, console);
    if (options.format != Format::Text) return;
    const auto text = closingText(report);
    const bool isNamed = text.starts_with(report.project);
    const auto line = isNamed ? text : fmt::format("{}: {}", host::fileNameOf(report.project), text);
    if (!options.dryRun && options.verbosity != Verbosity::Quiet)
        console.out(line + "\n");
    else if (report.exitStatus != kGood)
        console.err(line, Tone::Error);
}

void addMember(Report& group, Report member) {
    const auto messages = messagesOf(member);
    group.messages.insert(group.messages.end(), messages.begin(), messages.end());
    group.exitStatus = worse(group.exitStatus, member.exitStatus);
    group.projects.push_back(std::move(member));
}

/// Image, packages, or what was installed.
std::vector<std::string> resultsOf(const Report& report) {
    std::vector<std::string> results;
    if (!report.image.empty()) results.push_back(report.image);
    for (const auto& device : report.devices) results.insert(results.end(), device.places.begin(), device.places.end());
    return results;
}

void printTable(const Report& report, Console& console) {
    std::size_t width = 0;
    for (const auto& member : report.projects) width = std::max(width, host::fileNameOf(member.project).size());
    for (const auto& member : report.projects) {
        auto row = fmt::format("{:<{}}  {}", host::fileNameOf(member.project), width,
                               member.exitStatus == kGood ? "succeeded" : "failed");
        const auto results = resultsOf(member);
        if (results.empty()) console.out(row + "\n");
        for (const auto& result : results) {
            console.out(fmt::format("{}  {}\n", row, result));
            row.assign(row.size(), ' ');
        }
    }
}

} // namespace

Report runProjects(const Options& options, Console& console, RunProject run) {
    auto member = options;
    member.project = projectArgument(options.project);
    const auto group = projectGroupOf(member.project, options.codePage);
    if (group.path.empty()) return run(member, console);
    requireDistinctOutputs(group, options);
    Report report;
    report.verb = options.verb;
    report.project = group.path;
    for (const auto& project : group.projects) {
        console.note(fmt::format("== {}", project));
        member.project = project;
        auto one = memberReport(member, console, run);
        printMember(one, options, console);
        addMember(report, std::move(one));
    }
    const auto failed =
        std::count_if(report.projects.begin(), report.projects.end(), [](const auto& one) { return one.exitStatus; });
    report.statusText = fmt::format("{}, {} failed", plural(report.projects.size(), "project"), failed);
    return report;
}

void printProjects(const Report& report, const Options& options, Console& console, PrintProject print) {
    if (report.projects.empty()) return print(report, options, console);
    if (options.format != Format::Text) return (void)printFormatted(report, options, console);
    if (!report.failure.empty()) console.err("fernwick: " + report.failure, Tone::Error);
    if (options.verbosity == Verbosity::Quiet) {
        for (const auto& member : report.projects)
            for (const auto& result : resultsOf(member)) console.out(result + "\n");
        return;
    }
    printTable(report, console);
    console.out(report.statusText + "\n");
}

} // namespace cli
