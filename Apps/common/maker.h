#pragma once
#include "Add-in/platform/platform.h"
#include <string>

namespace apps {

/// Returns the App object with the addresses from `installation`/maker.toml, which are empty without that file. The
/// add-in's folder is "VB Toolkit/Bin" of the installation, or the program's folder without an installation.
fernwick::App appOf(const std::string& installation, const std::string& programFolder);

/// Returns the base address of the message pages, ending in "/"; "" if unknown.
std::string messagePagesOf(const std::string& installation);

} // namespace apps
