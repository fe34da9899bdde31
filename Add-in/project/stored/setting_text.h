#pragma once
// Values of settings as the text that the project file stores.
#include "Add-in/project/stored/project_setting.h"

namespace fernwick {

inline SettingKind settingKind(const std::string&) { return SettingKind::Text; }
inline SettingKind settingKind(std::int32_t) { return SettingKind::Number; }
inline SettingKind settingKind(float) { return SettingKind::Decimal; }
inline SettingKind settingKind(bool) { return SettingKind::Boolean; }

std::string settingText(const std::string& value);
std::string settingText(std::int32_t value);
std::string settingText(float value);
std::string settingText(bool value);

/// "-1" for True and "0" for False.
inline std::string settingNumber(bool value) { return value ? "-1" : "0"; }
template <class T>
std::string settingNumber(const T& value) {
    return settingText(value);
}

/// Error 13 or 6 for a text that does not convert. An empty text leaves a text value unchanged.
void convertSetting(const std::string& text, std::string& value);
void convertSetting(const std::string& text, std::int32_t& value);
void convertSetting(const std::string& text, float& value);
void convertSetting(const std::string& text, bool& value);

} // namespace fernwick
