#include "Add-in/build/messages/message_numbers.h"
#include "Apps/fernwick/groups/group_run.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/depfile.h"
#include "Apps/fernwick/run/build_plan.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/stored/stored_messages.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Components/QLToolkit/source/messages.h"
#include "Host/files/atomic_save.h"
#include <algorithm>
#include <filesystem>
#include <fmt/format.h>

namespace cli {

namespace fs = std::filesystem;

namespace {

constexpr const char* kNotCompiled = "FAILED - The project was not compiled.";

std::string imagePathOf(const Session& session) {
    auto& files = const_cast<Session&>(session).machine().platform().files;
    const auto folder = files.GetParentFolderName(session.path());
    return files.PlaceOnDisk(files.BuildPath(folder, session.project()->Name() + qltoolkit::kImageSuffix));
}

void warnOfLineFeeds(Session& session, Console& console) {
    std::size_t files = 0;
    for (const auto& input : session.machine().build().inputs) {
        host::FileContent content;
        const auto err = basic::attempt([&] { content = host::readFile(input); });
        if (err.Number == 0 && host::ownLineEnd(content.bytes) == host::LineEnd::Lf) ++files;
    }
    if (files > 0)
        console.err(
            fmt::format(
                "fernwick: warning: {} line ends without carriage return, so the stored line numbers of messages are "
                "wrong; fix with unix2dos",
                files == 1 ? "1 source file has" : fmt::format("{} source files have", files)),
            Tone::Warning);
}

Report dryRun(Session& session) {
    session.takeUp();
    auto report = plannedBuild(session, imagePathOf(session));
    session.closeUnsaved();
    return report;
}

bool isMachineTrouble(const Message& message) {
    return message.number == fernwick::message_numbers::kToolsMissing ||
           message.number == int(qltoolkit::Message::ImageNotWritten);
}

/// Compiles the project and, on success, validates it for the device.
Report compileAndValidate(Session& session, const std::string& device) {
    Report report;
    report.verb = "build";
    report.project = session.path();
    report.device = device;
    const bool compiled = session.addIn().compile.CompileProject(session.project());
    const bool good = compiled && session.addIn().validate.ValidateProject(session.project(), device);
    report.messages = messagesOfRun(session);
    report.statusText = statusText(session);
    // the compile ended before the compiler ran
    if (runStatus(session) == fernwick::RunStatus::Running) report.statusText = kNotCompiled;
    report.image = compiled ? imageOfRun(session) : std::string();
    report.exitStatus = good ? kGood : kProjectErrors;
    if (std::any_of(report.messages.begin(), report.messages.end(), isMachineTrouble))
        report.exitStatus = kMachineTrouble;
    return report;
}

/// As the project was named on the command line: relative to the current folder, or absolute.
std::string pathAsNamed(const std::string& path, bool relative) {
    const auto near = fs::path(path).lexically_proximate(fs::current_path());
    return relative && *near.begin() != ".." ? near.string() : path;
}

DepfileRule ruleFor(const Report& report, const Options& options) {
    const bool relative = fs::path(options.project).is_relative();
    const bool imageIsRelative = options.output.empty() ? relative : fs::path(options.output).is_relative();
    DepfileRule rule{options.depfileTarget, {}};
    if (rule.target.empty()) rule.target = pathAsNamed(report.image, imageIsRelative);
    for (const auto& input : report.inputs) rule.prerequisites.push_back(pathAsNamed(input, relative));
    return rule;
}

/// One rule for each image; with a target of its own one rule for all of them.
std::vector<DepfileRule> rulesFor(const Report& report, const Options& options) {
    if (report.projects.empty()) return {ruleFor(report, options)};
    std::vector<DepfileRule> rules;
    for (const auto& member : report.projects) {
        auto rule = ruleFor(member, options);
        rule.prerequisites.push_back(pathAsNamed(report.project, fs::path(options.project).is_relative()));
        auto& all = options.depfileTarget.empty() || rules.empty() ? rules.emplace_back(DepfileRule{rule.target, {}})
                                                                   : rules.front();
        all.prerequisites.insert(all.prerequisites.end(), rule.prerequisites.begin(), rule.prerequisites.end());
    }
    return rules;
}

/// Only after a complete build: without an image make would not see its prerequisites. A failure changes the exit
/// status.
void writeDepfile(const Options& options, Report& report) {
    const auto isMade = [](const Report& one) { return !one.image.empty(); };
    const bool made =
        report.projects.empty() ? isMade(report) : std::all_of(report.projects.begin(), report.projects.end(), isMade);
    if (options.depfile.empty() || !made) return;
    const auto err =
        basic::attempt([&] { host::FileSystem{}.WriteBytes(options.depfile, depfileText(rulesFor(report, options))); });
    if (err.Number == 0) return;
    report.failure = fmt::format("{}: cannot be written: {}", options.depfile, err.Description);
    report.exitStatus = kMachineTrouble;
}

Report buildProject(const Options& options, Console& console) {
    Session session{options, console};
    openProject(session, options);
    if (options.dryRun) return dryRun(session);
    beginWork(session, options);
    Report report = compileAndValidate(session, deviceOfRun(session, options));
    warnOfLineFeeds(session, console);
    report.inputs = inputsOf(session);
    endWork(session, report, options);
    return report;
}

} // namespace

int runBuild(const Options& options, Console& console) {
    Report report = runProjects(options, console, buildProject);
    if (options.dryRun) {
        printPlan(report, options, console);
        return report.exitStatus;
    }
    writeDepfile(options, report);
    printProjects(report, options, console, printReport);
    return report.exitStatus;
}

} // namespace cli
