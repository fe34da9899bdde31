#pragma once
#include "Add-in/platform/platform.h"
#include <string>

namespace apps {

/// The App object with the maker's addresses from `installation`/maker.toml; without that file they are empty. The
/// add-in's folder is the installation's "VB Toolkit/Bin", without an installation that of the program.
fernwick::App appOf(const std::string& installation, const std::string& programFolder);

/// The maker's address below which each message has its page, with "/" at its end; "" where none is known.
std::string messagePagesOf(const std::string& installation);

} // namespace apps
