#pragma once
// The stored settings of a project under the names that `fernwick settings` takes.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/registry.h"
#include "Add-in/project/clsQLProject.h"
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

using fernwick::SettingKind;

/// Where settings are stored: a project and, for some of them, the user's store.
struct SettingPlace {
    fernwick::clsQLProject& project;
    fernwick::Registry& registry;
    fernwick::Classes& classes;
};

struct StoredSetting {
    using Values = fernwick::ProjectSetting::Values;

    std::string name, meaning;
    SettingKind kind = SettingKind::Text;
    /// The values of a project without the setting.
    Values otherwise;
    /// Returns one value, or the entries of a list.
    std::function<Values(const SettingPlace& place)> read;
    /// Null for a setting that only a template or a build writes.
    std::function<void(const SettingPlace& place, const Values& values)> write;
    /// Returns why values of the right kind cannot be used, or ""; null if all can.
    std::function<std::string(const SettingPlace& place, const Values& values)> problem = nullptr;
    /// What else a user should know; "" for nothing.
    std::string details = {};
    /// Whether the value is the user's own, for all projects.
    bool isOfUser = false;
    /// For a setting of the user: returns the value in the project file, which is ignored; "" for none.
    std::function<std::string(const SettingPlace& place)> ignored = nullptr;
};

/// The project's own settings with those of the pipes.
std::span<const StoredSetting> storedSettings();
/// Letter case ignored; null for an unknown name.
const StoredSetting* storedSettingNamed(std::string_view name);
/// Returns the setting. Refusal 2 if it is read-only.
const StoredSetting& writableSetting(const StoredSetting& setting);
/// Refusal 2 for a read-only setting. Returns "" if the values can be written to the setting, else what is wrong with them.
std::string wrongWithValues(const StoredSetting& setting, const StoredSetting::Values& values);

} // namespace cli
