#pragma once
// The runtime that the installation has for a family of devices.
#include "Components/QLPipe/bundle.h"
#include <string>

namespace qlpipe {

/// From "VB Toolkit/Runtime/<family>/runtime.toml" of the installation, whose README tells the form. Throws TransferError.
Bundle runtimeBundle(const std::string& installation, const std::string& family);

} // namespace qlpipe
