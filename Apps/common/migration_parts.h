#pragma once
// The parts of a project that a device lacks, as its files name them: references, components and controls.
#include "Apps/common/migration.h"

namespace apps {

/// References and control libraries, and components of kinds that devices do not have, in the order of the project
/// file.
[[nodiscard]] std::vector<Hindrance> foreignMembers(const CheckedProject& project, const MigrationDevice& device);

/// The controls of a form that the device does not have, and the form itself if it is larger than the screen.
[[nodiscard]] std::vector<Hindrance> foreignControls(const qltoolkit::SourceText& source,
                                                     const MigrationDevice& device);

} // namespace apps
