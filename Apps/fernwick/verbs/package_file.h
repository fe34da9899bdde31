#pragma once
// Commands on an existing package.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"

namespace cli {

/// Whether the operand is a package, not a project.
bool isPackageFile(const std::string& operand);

/// Return the exit status: 1 if the package is damaged or a device rejects it, 2 if there is none.
int listPackage(const Options& options, Console& console);
int verifyPackage(const Options& options, Console& console);
int installPackage(const Options& options, Console& console);

} // namespace cli
