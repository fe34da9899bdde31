#pragma once
// The stored settings of a project under the names that `fernwick settings` takes.
#include "Add-in/project/clsQLProject.h"
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

using fernwick::SettingKind;

struct StoredSetting {
    using Values = fernwick::ProjectSetting::Values;

    std::string name, meaning;
    SettingKind kind = SettingKind::Text;
    /// The values of a project without the setting.
    Values otherwise;
    /// Returns one value, or the entries of a list.
    std::function<Values(const fernwick::clsQLProject& project)> read;
    /// Null for a setting that only a template or a build writes.
    std::function<void(fernwick::clsQLProject& project, const Values& values)> write;
};

/// The project's own settings with those of its Linux handheld.
std::span<const StoredSetting> storedSettings();
/// Letter case ignored; null for an unknown name.
const StoredSetting* storedSettingNamed(std::string_view name);
/// Returns the setting. Refusal 2 if it is read-only.
const StoredSetting& writableSetting(const StoredSetting& setting);
/// Refusal 2 for a read-only setting. Returns "" if the values can be written to the setting, else what is wrong with them.
std::string wrongWithValues(const StoredSetting& setting, const StoredSetting::Values& values);

} // namespace cli
