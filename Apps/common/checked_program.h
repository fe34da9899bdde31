#pragma once
// What the compiler is to check of a project.
#include "Apps/common/checked_project.h"
#include "Apps/common/described_libraries.h"
#include "Components/QLToolkit/check.h"

namespace apps {

/// `isWhole`: all sources could be read. The libraries must outlive the check.
[[nodiscard]] qltoolkit::ProgramOptions programOf(const CheckedProject& project, DescribedLibraries& libraries,
                                                  bool isWhole);

} // namespace apps
