#pragma once
// Checks of a project's settings before a transfer, like those of its files.
#include "Components/QLPipe/package/listed_files.h"
#include "Components/QLPipe/settings/application_settings.h"

namespace qlpipe {

/// Returns the settings for the application. Adds an error for each value that devices with these limits cannot use.
/// Lowers the memory in `limits` to the project's.
ApplicationSettings checkSettings(const PipeSettings& settings, const basic::Ref<vbide::VBProject>& project,
                                  TargetLimits& limits, FileListing& listing);

/// Does the same for a package, whose settings its reader has checked except for the memory.
void checkSettings(const Bundle& bundle, const std::string& package, TargetLimits& limits, FileListing& listing);

} // namespace qlpipe
