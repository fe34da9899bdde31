#include "Add-in/build/messages/message_numbers.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/depfile.h"
#include "Apps/fernwick/run/build_plan.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/verbs/stored_messages.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Host/files/atomic_save.h"
#include <fmt/format.h>

namespace cli {

namespace {

constexpr const char* kNotCompiled = "FAILED - The project was not compiled.";

std::string imagePathOf(const Session& session) {
    auto& files = const_cast<Session&>(session).machine().platform().files;
    const auto folder = files.GetParentFolderName(session.path());
    return files.BuildPath(folder, session.project()->Name() + qltoolkit::kImageSuffix);
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

int dryRun(Session& session, const Options& options, Console& console) {
    session.takeUp();
    printPlan(session, imagePathOf(session), options, console);
    session.closeUnsaved();
    return kGood;
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
    report.image = compiled ? session.machine().build().image : std::string();
    report.exitStatus = good ? kGood : kProjectErrors;
    for (const auto& message : report.messages)
        if (message.number == fernwick::message_numbers::kToolsMissing) report.exitStatus = kMachineTrouble;
    return report;
}

/// A failure changes the exit status: make would not see the image's prerequisites.
void writeDepfile(Session& session, const std::string& path, const std::vector<std::string>& inputs, Report& report) {
    auto& files = session.machine().platform().files;
    const auto err = basic::attempt([&] { files.WriteBytes(path, depfileText(report.image, inputs)); });
    if (err.Number == 0) return;
    report.failure = fmt::format("{}: cannot be written: {}", path, err.Description);
    report.exitStatus = kMachineTrouble;
}

int build(Session& session, const Options& options, Console& console) {
    openProject(session, options);
    if (options.dryRun) return dryRun(session, options, console);
    beginWork(session, options);

    Report report = compileAndValidate(session, deviceOfRun(session, options));
    warnOfLineFeeds(session, console);
    const auto inputs = inputsOf(session);
    endWork(session, report);
    if (!report.image.empty() && !options.depfile.empty()) writeDepfile(session, options.depfile, inputs, report);
    printReport(report, options, console);
    return report.exitStatus;
}

} // namespace

int runBuild(const Options& options, Console& console) {
    Session session{options, console};
    return build(session, options, console);
}

} // namespace cli
