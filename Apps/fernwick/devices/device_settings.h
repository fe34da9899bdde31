#pragma once
// The user's connection settings of a device, for all projects.
#include "Add-in/platform/registry.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include <string>
#include <utility>
#include <vector>

namespace cli {

/// Names and values; "" for a setting without a value.
using DeviceSettings = std::vector<std::pair<std::string, std::string>>;

/// Returns the settings of a device.
DeviceSettings readDeviceSettings(fernwick::Registry& registry, const std::string& key);

/// Stores assignments "NAME=VALUE"; an empty value removes the setting. Stores nothing if one of them is invalid.
/// `pipe` is the ProgID in its design target. Refusals: a device without settings, an unknown name or an invalid value (2),
/// a store that cannot be written (3).
void changeDeviceSettings(fernwick::Registry& registry, const std::string& key, const std::string& pipe,
                          const std::vector<std::string>& assignments);

} // namespace cli
