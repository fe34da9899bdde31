#pragma once
// The bundle that a project is sent as.
#include "Components/QLPipe/bundle.h"
#include "Components/QLPipe/listed_files.h"

namespace qlpipe {

/// The application for a device. Files stand in the order of their places, whatever the order of the lists. `listing` has no
/// error; an icon that is not there becomes a finding. Throws TransferError.
Bundle projectBundle(FileListing& listing, const ApplicationInfo& application, const std::string& device);

} // namespace qlpipe
