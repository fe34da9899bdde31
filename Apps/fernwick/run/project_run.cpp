#include "Apps/fernwick/run/project_run.h"
#include "Apps/common/compile_steps.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/verbose.h"
#include "Basic/case_folding.h"
#include "Host/files/atomic_save.h"
#include <fmt/format.h>

namespace cli {

namespace {

Refusal unusableTarget(Session& session, const std::string& key) {
    const auto near = didYouMean(key, session.addIn().devices.GetDesignTargets(false));
    return {kWrongUse,
            fmt::format("{} is not a usable design target{}", key, near.empty() ? "; see fernwick targets" : near)};
}

void requireDevice(Session& session, const std::string& wanted) {
    const bool none = session.addIn().devices.GetNumDesignTargets() == 0;
    if (!session.isOpen() || none)
        throw Refusal(kMachineTrouble,
                      none ? "no usable design target is installed; see fernwick targets. The project was not changed."
                           : "the project was closed by the add-in");
    const auto device = session.settings() ? session.settings()->TargetDevice() : std::string();
    if (device.empty() && !wanted.empty()) throw unusableTarget(session, wanted);
    if (device.empty())
        throw Refusal(kWrongUse,
                      fmt::format("{}: the project has no device; choose one with --device KEY (see fernwick "
                                  "targets)",
                                  session.path()));
    if (!session.addIn().devices.IsValidDevice(device))
        throw Refusal(kMachineTrouble, fmt::format("{}: its device {} is not installed or not usable; see fernwick "
                                                   "targets",
                                                   session.path(), device));
}

/// Without these the image would lack controls, fonts or libraries, which the add-in would only report as warnings.
void requireInstalledParts(Session& session) {
    const auto& root = session.machine().installation();
    const auto& files = session.machine().platform().files;
    if (root.empty()) return; // reported
    for (const char* part : {"Fonts", "libraries", "registry", "tavlets", "targets"})
        if (!files.FolderExists(files.BuildPath(root, part)))
            throw Refusal(kMachineTrouble, fmt::format("{}/{} is missing; see fernwick doctor", root, part));
}

/// The project file is saved after the image; the image must not appear older.
void stampImage(Session& session, const std::string& image) {
    auto& files = session.machine().platform().files;
    std::int64_t newest = files.GetDateLastModified(image);
    for (const auto& input : inputsOf(session))
        if (files.FileExists(input)) newest = std::max(newest, files.GetDateLastModified(input));
    files.SetDateLastModified(image, newest);
}

} // namespace

void openProject(Session& session, const Options& options) {
    const auto project = projectArgument(options.project);
    if (!options.dryRun) session.lock(project);
    session.open(project);
    session.requireFernwickProject();
    session.requireAllMembers();
    if (!options.dryRun) session.requireStorableResults();
    showSources(session);
}

void beginWork(Session& session, const Options& options) {
    session.takeUp();
    session.trust().prepare(session.machine().registry(), apps::allSteps(*session.settings()));
    session.forget();
    if (!options.device.empty()) session.user().context().device = usableDevice(session, options.device);
    session.connect();
    requireDevice(session, options.device);
    requireInstalledParts(session);
    showStateOfImage(session);
}

std::string usableDevice(Session& session, const std::string& given) {
    auto& devices = session.addIn().devices;
    if (devices.IsValidDevice(given)) return given;
    for (auto& key : devices.GetDesignTargets(false))
        if (basic::equalNoCase(key, given)) return key;
    throw unusableTarget(session, given);
}

std::string deviceOfRun(Session& session, const Options& options) {
    return options.device.empty() ? session.settings()->TargetDevice() : usableDevice(session, options.device);
}

std::string statusText(Session& session) {
    const auto window = session.addIn().compileMsgs();
    return window ? window->lblStatusText() : std::string();
}

fernwick::RunStatus runStatus(Session& session) {
    return session.addIn().compileMsgs() ? session.addIn().messages.status() : fernwick::RunStatus::None;
}

std::vector<std::string> inputsOf(Session& session) {
    auto inputs = session.machine().build().inputs;
    inputs.push_back(session.path());
    return inputs;
}

std::string imageOfRun(Session& session) {
    const auto& image = session.machine().build().image;
    return image.empty() ? image : session.machine().platform().files.PlaceOnDisk(image);
}

void endWork(Session& session, Report& report, const Options& options) {
    auto& files = session.machine().platform().files;
    if (session.addIn().errors.reports() > 0) report.exitStatus = kMachineTrouble;
    showOtherInputs(session);
    const auto image = imageOfRun(session);
    if (!session.closeAndSave()) {
        report.failure = session.path() + " cannot be saved";
        report.exitStatus = kMachineTrouble;
    }
    report.boxes = session.user().shown();
    if (!image.empty()) stampImage(session, image);
    if (options.output.empty()) return;
    const auto folder = files.GetAbsolutePathName(options.output);
    files.WriteBytes(files.BuildPath(folder, reportNameOf(session.path())), jsonOf(report));
}

} // namespace cli
