// `deploy` and `package`.
#include "Apps/fernwick/devices/device_runs.h"
#include "Apps/fernwick/groups/group_run.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/stored/stored_messages.h"
#include "Apps/fernwick/verbs/package_file.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

namespace {

enum class Way { Send, Pack };

Report transfer(const Options& options, Console& console, Way way) {
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
    endWork(session, report, options);
    return report;
}

Report send(const Options& options, Console& console) { return transfer(options, console, Way::Send); }
Report pack(const Options& options, Console& console) { return transfer(options, console, Way::Pack); }

void printSent(const Report& report, const Options& options, Console& console) {
    printOutcomes(report, "sent", options.myDevices, options, console);
}
void printPacked(const Report& report, const Options& options, Console& console) {
    printOutcomes(report, "packed", options.myDevices, options, console);
}

} // namespace

int runDeploy(const Options& options, Console& console) {
    if (isPackageFile(options.project)) return installPackage(options, console);
    const Report report = runProjects(options, console, send);
    printProjects(report, options, console, printSent);
    return report.exitStatus;
}

int runPackage(const Options& options, Console& console) {
    if (options.list) return listPackage(options, console);
    if (options.verify) return verifyPackage(options, console);
    const Report report = runProjects(options, console, pack);
    printProjects(report, options, console, printPacked);
    return report.exitStatus;
}

} // namespace cli
