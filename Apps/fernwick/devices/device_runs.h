#pragma once
// Serving one device, or one after the other all of My Devices.
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/session.h"
#include <functional>

namespace cli {

/// The devices that --device or --my-devices name, else `own`. Refusal 2: none, or one that is not usable here.
std::vector<std::string> devicesToServe(Session& session, const Options& options, const std::string& own);

/// One device's run by the add-in; the messages that it left.
using ServeDevice = std::function<std::vector<Message>(const std::string& device)>;

/// Serves the devices one after the other; a failing one stops none of the rest. A device is good when its pipe
/// answered so and neither an error nor a critical box came up.
std::vector<DeviceOutcome> serveDevices(Session& session, const std::vector<std::string>& devices, Console& console,
                                        const ServeDevice& serve);

/// 0 when all are good; a single one 1, of a list 4 when some failed and 5 when all did.
int statusOf(const std::vector<DeviceOutcome>& outcomes, bool list);

/// What is where now, or of a list a table of device and outcome; under --format the whole report. `done` is what is
/// said of a good device ("sent").
void printOutcomes(const Report& report, const std::string& done, bool list, const Options& options, Console& console);

} // namespace cli
