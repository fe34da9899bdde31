#include "Add-in/project/stored/target_device_setting.h"

namespace fernwick {

void TargetDeviceSetting::let(const std::string& key) {
    Setting::let(key);
    targets_.set(Array<std::string>{0, {"", key}});
    Procedure here{store().errors(), "clsQLProject.Let_TargetDevice"};
    fetchDesignTarget(here, key);
}

void TargetDeviceSetting::fetchDesignTarget(Procedure& here, const std::string& key) {
    if (here.test([&] { return !designTarget || designTarget->Key() != key; }))
        here([&] { designTarget = store().services().devices.GetDesignTarget(key); });
}

} // namespace fernwick
