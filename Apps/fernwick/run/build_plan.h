#pragma once
// `build --dry-run`.
#include "Apps/fernwick/run/session.h"

namespace cli {

/// Prints what a build would read, run and write. Requires a session after takeUp().
void printPlan(Session& session, const std::string& image, const Options& options, Console& console);

} // namespace cli
