#pragma once
#include "Apps/fernwick/groups/project_group.h"
#include "Apps/fernwick/options/options.h"

namespace cli {

/// Refusal 2 if two projects of a group would write the same file: images and packages with the same name in the same
/// folder, or reports in the folder of --output. Projects that cannot be read are ignored; they fail by themselves.
void requireDistinctOutputs(const ProjectGroup& group, const Options& options);

} // namespace cli
