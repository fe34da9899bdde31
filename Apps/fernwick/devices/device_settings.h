#pragma once
// How a device is reached, as the user says it for all projects.
#include "Add-in/platform/registry.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include <string>
#include <utility>
#include <vector>

namespace cli {

/// Name and value; "" for a value that is not set.
using DeviceSettings = std::vector<std::pair<std::string, std::string>>;

/// The settings of a device in their order; none for a device that is reached without any. `pipe` is the ProgID that its
/// design target names.
DeviceSettings readDeviceSettings(fernwick::Registry& registry, const std::string& key, const std::string& pipe);

/// Stores assignments "NAME=VALUE"; an empty value takes the setting away. Nothing is stored when one of them can't be
/// meant. Refusals: an unknown name or a bad value (2), a store that can't be written (3).
void changeDeviceSettings(fernwick::Registry& registry, const std::string& key, const std::string& pipe,
                          const std::vector<std::string>& assignments);

/// Refusal 2 for settings of a Linux handheld that can't be meant: they are told to be wrong where they are set, not
/// where a transfer fails. The host may come later.
void requireMeantSettings(qlpipe::LinuxHandheldSettings settings, const std::string& key);

} // namespace cli
