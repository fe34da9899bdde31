#include "Add-in/devices/clsDeviceConfig.h"
#include "Basic/conversions.h"
#include "Basic/text.h"
#include "Basic/text_search.h"

namespace fernwick {

using designtargetaccess::IQLDesignTarget;

clsDeviceConfig::clsDeviceConfig(const DeviceServices& services) : services_(services) {
    if (!services_.devices.gDesignTargetMgr) services_.devices.initDesignTargetMgr();
}

void clsDeviceConfig::ReadDeviceConfig(const std::string& newDeviceKey) {
    Procedure here{services_.errors, "clsDeviceConfig.ReadDeviceConfig"};
    if (!services_.devices.gDesignTargetMgr) services_.devices.initDesignTargetMgr();
    const auto manager = services_.devices.gDesignTargetMgr;
    if (!manager) return;

    DeviceKey = newDeviceKey;
    std::int32_t position = 0;
    if (here.test([&] { return !manager->FindDesignTarget(DeviceKey, position); })) return;
    basic::Ref<IQLDesignTarget> target;
    here([&] { manager->GetDesignTarget(DeviceKey, target); });
    if (!target) return;

    readFields(here, *target);
    ReadSupportedTavlets(*target);
    ReadSupportedReferences(*target);
}

void clsDeviceConfig::readFields(Procedure& here, const IQLDesignTarget& target) {
    here([&] { DeviceName = target.Name(); });
    here([&] { defaultFormHeight = basic::CLng(target.DefaultFormHeight()); });
    here([&] { DefaultFormWidth = basic::CLng(target.DefaultFormWidth()); });
    here([&] { TavletStyleID = basic::CLng(target.TavletStyleID()); });
    here([&] { RequiredPipeProgID = target.RequiredPipeProgID(); });
    here([&] { DefaultFontName = target.DefaultFontName(); });
    here([&] { DefaultFontSize = basic::CLng(target.DefaultFontSize()); });
    here([&] { DefaultFormColor = basic::CLng(target.DefaultFormColor()); });

    DefaultFontStyle = 0;
    std::string style;
    const bool present = here.value([&] { return target.GetOption("DefaultFontStyle", style); });
    if (present) (void)basic::attempt([&] { DefaultFontStyle = basic::CLng(style); }); // "bold" is not a number
}

void clsDeviceConfig::ReadSupportedReferences(const IQLDesignTarget& target) {
    Procedure here{services_.errors, "clsDeviceConfig.ReadSupportedReferences"};
    here([&] { referenceCount_ = target.NumSupportedReferences(); });
    if (referenceCount_ < 1) return;
    std::vector<std::string> supported;
    here([&] { target.GetSupportedReferences(supported); });
    if (!here([&] { references_.ReDim(1, referenceCount_); })) return;
    const Array<std::string> guids{0, std::move(supported)};
    for (std::int32_t i = 1; i <= referenceCount_; ++i) {
        here([&] { references_[i].GUID = guids[i - 1]; });
        references_[i].Value = 1;
    }
}

std::int32_t clsDeviceConfig::GetDeviceTavlets(Array<ValidTavlet>& TavletList) const {
    TavletList = tavlets_;
    return tavletCount_;
}

std::int32_t clsDeviceConfig::GetDeviceReferences(Array<tReference>& ReferenceList) const {
    ReferenceList = references_;
    return referenceCount_;
}

std::string clsDeviceConfig::GetOSName(const std::string& key) {
    constexpr std::string_view path = "SOFTWARE\\Quinloft\\DesignTargets\\";
    const auto name = basic::Mid(key, basic::Len(path) + 1);
    const auto end = basic::InStr(name, "\\");
    return end > 0 ? basic::Left(name, end - 1) : name;
}

} // namespace fernwick
