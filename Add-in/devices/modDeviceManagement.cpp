#include "Add-in/devices/modDeviceManagement.h"
#include "Add-in/platform/pipes.h"
#include "Basic/text_search.h"

namespace fernwick {

using designtargetaccess::IQLDesignTarget;
using designtargetaccess::IQLDesignTargetMgr;

void modDeviceManagement::initDesignTargetMgr() try {
    gDesignTargetMgr = basic::cast<IQLDesignTargetMgr>(classes_.CreateObject("DesignTargetAccess.QLDesignTargetMgr"));
    gDesignTargetMgr->Initialize();
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("modDeviceManagement.initDesignTargetMgr", error);
}

bool modDeviceManagement::hasManager() {
    if (!gDesignTargetMgr) initDesignTargetMgr();
    return bool(gDesignTargetMgr);
}

basic::Ref<IQLDesignTarget> modDeviceManagement::GetDesignTarget(const std::string& key) {
    basic::Ref<IQLDesignTarget> target;
    if (!hasManager() || !gDesignTargetMgr->GetDesignTarget(key, target)) return nullptr;
    return target;
}

bool modDeviceManagement::IsValidDevice(const std::string& key) try {
    if (!hasManager() || key.empty()) return false;
    std::int32_t position = 0;
    if (!gDesignTargetMgr->FindDesignTarget(key, position)) return false;
    const auto target = GetDesignTarget(key);
    if (!target) return false;
    const auto pipe = target->RequiredPipeProgID();
    return !pipe.empty() && isSupported(pipe, key);
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("modDeviceManagement.IsValidDevice", error);
    return false;
}

bool modDeviceManagement::isSupported(const std::string& pipe, const std::string& key) {
    const auto validation = basic::cast<qlpipe::IQLPipeValidation>(classes_.CreateObject(pipe + ".Validation"));
    return validation->IsDeviceSupported(key);
}

std::vector<std::string> modDeviceManagement::GetDesignTargets(bool showErrors) {
    return CreateValidDesignTargetList(showErrors);
}

std::vector<std::string> modDeviceManagement::CreateValidDesignTargetList(bool) try {
    std::vector<std::string> keys;
    if (!hasManager()) return keys;
    bool suppressed = false; // from the first validation to the end of the loop
    for (std::int32_t i = 0, count = gDesignTargetMgr->Count(); i < count; ++i) {
        try {
            const auto target = gDesignTargetMgr->GetDesignTargetByIndex(std::int16_t(i));
            if (!target || target->PlatformName().empty()) continue;
            const auto pipe = target->RequiredPipeProgID();
            if (pipe.empty()) continue;
            suppressed = true;
            auto key = target->Key();
            if (isSupported(pipe, key)) keys.push_back(std::move(key));
        } catch (const basic::RuntimeError&) {
            if (!suppressed) throw;
        }
    }
    return keys;
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("modDeviceManagement.CreateValidDesignTargetList", error);
    return {};
}

std::int32_t modDeviceManagement::GetNumDesignTargets() try {
    if (!hasManager()) return 0;
    const auto count = gDesignTargetMgr->Count();
    return CreateValidDesignTargetList(false).empty() ? 0 : count;
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("modDeviceManagement.GetNumDesignTargets", error);
    return 0;
}

std::string modDeviceManagement::StripAcceleratorInfo(const std::string& text) { return basic::Replace(text, "&", ""); }

std::string modDeviceManagement::GetPipeNameForDevice(const std::string& key) try {
    if (!hasManager() || key.empty()) return {};
    const auto target = GetDesignTarget(key);
    return target ? target->RequiredPipeProgID() : std::string{};
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("modDeviceManagement.GetPipeNameForDevice", error);
    return {};
}

std::string modDeviceManagement::GetDeviceName(const std::string& key) try {
    const auto target = GetDesignTarget(key);
    return target ? target->Name() : std::string{};
} catch (const basic::RuntimeError& error) {
    errors_.Error_ShowAddInError("modDeviceManagement.GetDeviceName", error);
    return {};
}

} // namespace fernwick
