#include "Apps/fernwick/devices/device_runs.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

int runInstallRuntime(const Options& options, Console& console) {
    Session session{options, console};
    session.connect();
    const auto devices = devicesToServe(session, options, "");

    Report report;
    report.verb = options.verb;
    report.devices = serveDevices(session, devices, console, [&](const std::string& device) {
        session.addIn().sendRuntime.SendRuntimeToDevice(device);
        return std::vector<Message>(); // there is no project to store them: message boxes are the report
    });
    report.exitStatus = statusOf(report.devices, options.myDevices);
    session.closeUnsaved();
    printOutcomes(report, "installed", options.myDevices, options, console);
    return report.exitStatus;
}

} // namespace cli
