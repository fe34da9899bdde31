#include "Add-in/settings/setting_tip.h"
#include "Basic/text.h"

namespace fernwick {

std::string settingTip(const SettingList& list, std::string_view name) {
    for (const auto* setting : list.settings()) {
        if (setting->name() != name) continue;
        const auto& meaning = setting->meaning();
        auto tip = basic::UCase(meaning.substr(0, 1)) + meaning.substr(1) + ".";
        for (const auto& value : setting->defaults()) tip += " Default: " + value + ".";
        return tip;
    }
    return {};
}

} // namespace fernwick
