#pragma once
// What is done with a package that was made before.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"

namespace cli {

/// Whether an operand names a package rather than a project.
bool isPackageFile(const std::string& operand);

/// Each answers the exit status: 1 for a package that is damaged or that a device refuses, 2 for none.
int listPackage(const Options& options, Console& console);
int verifyPackage(const Options& options, Console& console);
int installPackage(const Options& options, Console& console);

} // namespace cli
