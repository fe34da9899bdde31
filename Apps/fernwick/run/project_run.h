#pragma once
// The beginning and the end of build, validate, package and deploy.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/session.h"

namespace cli {

/// Opens the project given on the command line once no other run writes it. Refusals: not a usable Fernwick project
/// (1), the results cannot be stored (3).
void openProject(Session& session, const Options& options);

/// Reads the project's compile steps and connects the add-in, which assigns a device if the project has none. Refusals:
/// no device (2), the device or another part that a build needs is not installed (3).
void beginWork(Session& session, const Options& options);

/// Returns the key of a usable design target as it is installed; letter case of `given` is ignored. Refusal 2 for any
/// other key.
std::string usableDevice(Session& session, const std::string& given);

/// Returns the device given by --device, else the project's own. Refusal 2 if it is not usable.
std::string deviceOfRun(Session& session, const Options& options);

/// Returns the status line of the messages window; "" if there is no window.
std::string statusText(Session& session);
/// Returns the run status that this line shows.
fernwick::RunStatus runStatus(Session& session);

/// Saves and closes the project; a failure to save is added to the report. The image's time is set so that it is not
/// older than its inputs.
/// With --output the report is also stored there.
void endWork(Session& session, Report& report, const Options& options);

/// Returns the path of the image; "" if the run made none.
std::string imageOfRun(Session& session);

/// Returns the image's inputs, with the project file last.
std::vector<std::string> inputsOf(Session& session);

} // namespace cli
