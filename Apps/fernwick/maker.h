#pragma once
#include "Add-in/platform/platform.h"
#include <string>

namespace cli {

/// The App object with the maker's addresses from `installation`/maker.toml; without that file they are empty.
fernwick::App appOf(const std::string& installation, const std::string& programFolder);

} // namespace cli
