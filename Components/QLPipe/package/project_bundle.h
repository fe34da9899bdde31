#pragma once
// Makes the bundle of a project.
#include "Components/QLPipe/package/bundle.h"
#include "Components/QLPipe/package/listed_files.h"
#include "Components/QLPipe/settings/application_settings.h"

namespace qlpipe {

/// Returns the application for a device, with its files sorted by place. `listing` must not contain errors. A missing
/// icon becomes a finding. `settings` must be valid. Throws TransferError.
Bundle projectBundle(FileListing& listing, const ApplicationInfo& application, const std::string& device,
                     const ApplicationSettings& settings = {});

} // namespace qlpipe
