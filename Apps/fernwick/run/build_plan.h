#pragma once
// What a build would do, for --dry-run.
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/session.h"

namespace cli {

/// Returns the plan of a build of the open project, which would write `image`.
Report plannedBuild(Session& session, const std::string& image);

/// Prints the plan of a project, or those of a group's projects, in the requested format. Schema:
/// installation/schemas/build-plan-1.json.
void printPlan(const Report& report, const Options& options, Console& console);

} // namespace cli
