#include "Add-in/build/build_texts.h"
#include "Add-in/build/message_numbers.h"
#include "Apps/fernwick/depfile.h"
#include "Apps/fernwick/exit_status.h"
#include "Apps/fernwick/project_argument.h"
#include "Apps/fernwick/session.h"
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
    return files.BuildPath(folder, session.project()->Name() + compiler::kImageSuffix);
}

std::vector<std::string> allSteps(const fernwick::clsQLProject& project) {
    std::vector<std::string> steps;
    for (const auto read :
         {&fernwick::clsQLProject::GetPreCompileSteps, &fernwick::clsQLProject::GetPostCompileSteps}) {
        fernwick::Array<std::string> list;
        (project.*read)(list);
        steps.insert(steps.end(), list.begin(), list.end());
    }
    return steps;
}

/// The image's inputs, the project's own file last: what the depfile lists and the image must not be older than.
std::vector<std::string> inputsOf(Session& session) {
    auto inputs = session.machine().build().inputs;
    inputs.push_back(session.path());
    return inputs;
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
            fmt::format("fernwick: warning: {} line feeds for line ends, so the stored lines of messages count from "
                        "another place; unix2dos cures it",
                        files == 1 ? "1 source file has" : fmt::format("{} source files have", files)),
            Tone::Warning);
}

int dryRun(Session& session, Console& console) {
    session.takeUp();
    auto& files = session.machine().platform().files;
    console.out(fmt::format("project  {}\ndevice   {}\n", session.path(), session.settings()->TargetDevice()));
    for (const auto& component : session.project()->VBComponents()->items())
        console.out(fmt::format("source   {}\n", files.GetAbsolutePathName(component->FileNames(1))));
    for (const auto& reference : session.project()->References()->items())
        if (!reference->BuiltIn()) console.out(fmt::format("library  {}\n", reference->FullPath()));
    for (const auto& step : allSteps(*session.settings().shared())) console.out(fmt::format("step     {}\n", step));
    console.out(fmt::format("image    {}\n", imagePathOf(session)));
    session.closeUnsaved();
    return kGood;
}

void requireDevice(Session& session, const std::string& wanted) {
    const auto none = session.addIn().devices.GetNumDesignTargets() == 0;
    if (!session.isOpen() || none) {
        throw Refusal(kMachineTrouble,
                      none ? "no usable design target is installed; see fernwick targets. The project was not touched."
                           : "the project was closed by the add-in");
    }
    const auto device = session.settings() ? session.settings()->TargetDevice() : std::string();
    if (device.empty() && !wanted.empty())
        throw Refusal(kWrongUse, fmt::format("{} is no usable design target; fernwick targets lists them", wanted));
    if (device.empty())
        throw Refusal(kWrongUse, fmt::format("{}: the project has no device; choose one with --device KEY (fernwick "
                                             "targets lists them)",
                                             session.path()));
    if (!session.addIn().devices.IsValidDevice(device))
        throw Refusal(kMachineTrouble, fmt::format("{}: its device {} is not installed or not usable here; fernwick "
                                                   "targets lists what is",
                                                   session.path(), device));
}

Report compileProject(Session& session) {
    Report report;
    report.verb = "build";
    report.project = session.path();
    report.device = session.settings()->TargetDevice();
    const bool good = session.addIn().compile.CompileProject(session.project());
    report.messages = messagesOfBuild(session.project(), session.machine().build());
    const auto window = session.addIn().compileMsgs();
    report.statusText = window ? window->lblStatusText() : std::string();
    // a compile that ended before the compiler ran leaves its first words
    if (report.statusText == fernwick::build_texts::kCompilingAndValidating) report.statusText = kNotCompiled;
    report.image = good ? session.machine().build().image : std::string();
    report.exitStatus = good ? kGood : kProjectErrors;
    for (const auto& message : report.messages)
        if (message.number == fernwick::message_numbers::kToolsMissing) report.exitStatus = kMachineTrouble;
    return report;
}

/// The project's file is saved after the image was written: the image must not look older than it.
void stampImage(Session& session, const std::string& image) {
    auto& files = session.machine().platform().files;
    std::int64_t newest = files.GetDateLastModified(image);
    for (const auto& input : inputsOf(session))
        if (files.FileExists(input)) newest = std::max(newest, files.GetDateLastModified(input));
    files.SetDateLastModified(image, newest);
}

/// The image stands, but make would not know of it: trouble.
void writeDepfile(Session& session, const std::string& path, const std::vector<std::string>& inputs, Report& report) {
    auto& files = session.machine().platform().files;
    const auto err = basic::attempt([&] { files.WriteBytes(path, depfileText(report.image, inputs)); });
    if (err.Number == 0) return;
    report.failure = fmt::format("{}: cannot be written: {}", path, err.Description);
    report.exitStatus = kMachineTrouble;
}

void printReport(const Report& report, const Options& options, Console& console) {
    if (!report.failure.empty()) console.err("fernwick: " + report.failure, Tone::Error);
    if (options.format == Format::Json) return console.out(jsonOf(report));
    if (options.format == Format::Sarif) return console.out(sarifOf(report));
    for (const auto& message : report.messages)
        console.err(textOf(message, report.project), message.isError ? Tone::Error : Tone::Warning);
    if (!report.statusText.empty()) console.out(report.statusText + "\n");
    if (!report.image.empty() && options.verbosity != Verbosity::Quiet) console.out("Image: " + report.image + "\n");
}

int build(Session& session, const Options& options, Console& console) {
    session.open(projectArgument(options.project));
    session.requireFernwickProject();
    session.requireAllMembers();
    if (options.dryRun) return dryRun(session, console);
    session.takeUp();
    session.trust().prepare(session.machine().registry(), allSteps(*session.settings().shared()));
    session.forget();
    session.connect();
    requireDevice(session, options.device);
    if (const auto own = session.settings()->TargetDevice(); !options.device.empty() && own != options.device)
        console.err(fmt::format("fernwick: warning: the project's own device {} counts, not {}; fernwick settings set "
                                "TargetDevice changes it",
                                own, options.device),
                    Tone::Warning);

    Report report = compileProject(session);
    warnOfLineFeeds(session, console);
    const auto inputs = inputsOf(session);
    const bool readOnly = host::isReadOnly(session.path());
    if (!session.closeAndSave() && !readOnly) {
        report.failure = session.path() + " could not be saved";
        report.exitStatus = kMachineTrouble;
    }
    report.boxes = session.user().shown();
    if (!report.image.empty()) {
        stampImage(session, report.image);
        if (!options.depfile.empty()) writeDepfile(session, options.depfile, inputs, report);
    }
    printReport(report, options, console);
    return report.exitStatus;
}

} // namespace

int runBuild(const Options& options, Console& console) {
    Session session{options, console};
    return build(session, options, console);
}

} // namespace cli
