#pragma once
// `info --verify`.
#include "Apps/fernwick/groups/project_group.h"
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"
#include "Basic/code_page.h"

namespace cli {

/// Prints the verdict on each file and returns the exit status: 1 if one would change, is missing or cannot be read.
int verifyRoundTrip(const ProjectGroup& subject, const Options& options, Console& console);

} // namespace cli
