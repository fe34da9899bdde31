#pragma once
// Runs a transfer for one device, or for all of My Devices.
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/session.h"
#include <functional>

namespace cli {

/// Returns the devices given by --device or --my-devices, else `own`. Refusal 2 if there is none or one is not usable.
std::vector<std::string> devicesToServe(Session& session, const Options& options, const std::string& own);

/// Runs the add-in for one device and returns the messages of the run.
using ServeDevice = std::function<std::vector<Message>(const std::string& device)>;

/// Serves the devices one after the other, also after a failure. An outcome is good if the pipe succeeded without
/// errors and without critical message boxes.
std::vector<DeviceOutcome> serveDevices(Session& session, const std::vector<std::string>& devices, Console& console,
                                        const ServeDevice& serve);

/// Returns 0 if all are good; otherwise 1 for a single device, and for a list 4 if some failed or 5 if all did.
int statusOf(const std::vector<DeviceOutcome>& outcomes, bool list);

/// Prints the installed files of a single device, or a table for a list; with --format the whole report. `done` is the
/// word for success ("sent").
void printOutcomes(const Report& report, const std::string& done, bool list, const Options& options, Console& console);

} // namespace cli
