#pragma once
#include "Add-in/project/stored/project_setting.h"
#include <string>
#include <string_view>

namespace fernwick {

/// The meaning and the default of a project's setting, as its declaration has them; "" for an unknown name.
std::string settingTip(const SettingList& list, std::string_view name);

} // namespace fernwick
