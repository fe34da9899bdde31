#pragma once
// Makes the bundle of the runtime of a device family.
#include "Components/QLPipe/package/bundle.h"
#include <string>

namespace qlpipe {

/// Reads "VB Toolkit/Runtime/<family>/runtime.toml" of the installation, described in the README there. Throws
/// TransferError.
Bundle runtimeBundle(const std::string& installation, const std::string& family);

} // namespace qlpipe
