#pragma once
// Every stored setting of a project under the name that `fernwick settings` takes.
#include "Add-in/project/clsQLProject.h"
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

enum class SettingKind { Text, Number, Decimal, Boolean, List };

struct StoredSetting {
    using Values = std::vector<std::string>;

    std::string_view name;
    SettingKind kind;
    /// One value, or the entries of a list.
    Values (*read)(const fernwick::clsQLProject& project);
    /// Null for a setting that only a template or a build writes.
    void (*write)(fernwick::clsQLProject& project, const Values& values);
    /// What a project without the setting has.
    Values otherwise;
    std::string_view meaning;
};

std::span<const StoredSetting> storedSettings();
/// Letter case ignored; null for an unknown name.
const StoredSetting* storedSettingNamed(std::string_view name);
/// Whether the values can be written to it; "" or what is wrong with them.
std::string wrongWithValues(const StoredSetting& setting, const StoredSetting::Values& values);

} // namespace cli
