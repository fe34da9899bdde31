#include "Add-in/project/stored/setting_text.h"
#include "Basic/conversions.h"

namespace fernwick {

std::string settingText(const std::string& value) { return value; }
std::string settingText(std::int32_t value) { return basic::CStr(value); }
std::string settingText(float value) { return basic::CStr(value); }
std::string settingText(bool value) { return basic::CStr(value); }

void convertSetting(const std::string& text, std::string& value) {
    if (!text.empty()) value = text;
}
void convertSetting(const std::string& text, std::int32_t& value) { value = basic::CLng(text); }
void convertSetting(const std::string& text, float& value) { value = basic::CSng(text); }
void convertSetting(const std::string& text, bool& value) { value = basic::CBool(text); }

} // namespace fernwick
