#pragma once
// The beginning and the end of every verb that works on a project: build, validate, package and deploy.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/session.h"

namespace cli {

/// Opens the project of the command line. Refusal 1 for one that is no usable Fernwick project.
void openProject(Session& session, const Options& options);

/// Asks about the project's steps and connects the add-in, which gives it a device where it has none. Refusals: no
/// device (2), nothing installed that serves it (3).
void beginWork(Session& session, const Options& options);

/// Refusal 2 for a device that nothing here can serve.
void requireUsableDevice(Session& session, const std::string& device);

/// The device that the run is for: --device, else the project's own. Refusal 2 for one that is not usable here.
std::string deviceOfRun(Session& session, const Options& options);

/// What stands in the messages window below the messages; "" where there is no window or nothing happened.
std::string statusText(Session& session);
/// What this text stands for.
fernwick::RunStatus runStatus(Session& session);

/// Closes the project as a user would, and tells in the report when its file could not be saved. The image of a
/// compile gets a time that is not before its inputs'.
void endWork(Session& session, Report& report);

/// The image's inputs, the project's own file last.
std::vector<std::string> inputsOf(Session& session);

} // namespace cli
