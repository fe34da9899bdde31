#pragma once
// The device of a project: its key, and its design target.
#include "Add-in/project/stored/compile_target_list.h"
#include "Add-in/project/stored/setting.h"

namespace fernwick {

/// Setting it also makes the device the only compile target and fetches its design target.
class TargetDeviceSetting final : public Setting<std::string> {
public:
    TargetDeviceSetting(SettingList* owner, CompileTargetList& targets)
        : Setting(owner, "TargetDevice", "key of the design target"), targets_(targets) {}

    basic::Ref<designtargetaccess::IQLDesignTarget> designTarget;
    /// Fetches the design target of a key, unless it is already set.
    void fetchDesignTarget(Procedure& here, const std::string& key);

    bool owns(std::string_view section, std::string_view key) const override {
        return Setting::owns(section, key) || (section == kGlobalSection && CompileTargetList::owns(key));
    }

protected:
    std::string get() const override { return currentDeviceKey(Setting::get()); }
    void let(const std::string& key) override;

private:
    CompileTargetList& targets_;
};

} // namespace fernwick
