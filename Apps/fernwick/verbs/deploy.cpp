// `deploy` and `package`.
#include "Apps/fernwick/devices/device_runs.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/verbs/package_file.h"
#include "Apps/fernwick/verbs/stored_messages.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

namespace {

enum class Way { Send, Pack };

int transfer(const Options& options, Console& console, Way way) {
    Session session{options, console};
    openProject(session, options);
    beginWork(session, options);
    const auto devices = devicesToServe(session, options, session.settings()->TargetDevice());

    Report report;
    report.verb = options.verb;
    report.project = session.path();
    report.devices = serveDevices(session, devices, console, [&](const std::string& device) {
        session.addIn().sendToDevice.SendProjectToDevice(session.settings(), way == Way::Pack, device);
        return messagesOfRun(session);
    });
    report.exitStatus = statusOf(report.devices, options.myDevices);
    endWork(session, report);
    printOutcomes(report, way == Way::Pack ? "packed" : "sent", options.myDevices, options, console);
    return report.exitStatus;
}

} // namespace

int runDeploy(const Options& options, Console& console) {
    if (isPackageFile(options.project)) return installPackage(options, console);
    return transfer(options, console, Way::Send);
}

int runPackage(const Options& options, Console& console) {
    if (options.list) return listPackage(options, console);
    if (options.verify) return verifyPackage(options, console);
    return transfer(options, console, Way::Pack);
}

} // namespace cli
