// Whether a project's device supports the libraries that the project uses.
#include "Add-in/build/frmValidate.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"
#include <fmt/format.h>

namespace fernwick {

using designtargetaccess::IQLDesignTarget;
using namespace fmt::literals;

bool frmValidate::ScanReferences(const Project& project) {
    Procedure here{services_.errors, "frmValidate.ScanReferences"};
    initialiseTargets(here);
    bool good = scanForBroken(here, project);
    if (deviceKey_.empty()) return good;
    basic::Ref<IQLDesignTarget> target;
    if (here.test(
            [&] { return !services_.deviceServices.devices.gDesignTargetMgr->GetDesignTarget(deviceKey_, target); }))
        return good;
    readDeviceConfig(here);
    for (const auto& moduleId : here.value([&] { return qlProject_->GetComponentDependencies(); }))
        if (!isSupported(here, project, target, moduleId)) {
            reportNotSupported(here, project, target, moduleId);
            good = false;
        }
    return good;
}

/// Without a manager the scan continues, and the lookup of the target fails.
void frmValidate::initialiseTargets(Procedure& here) {
    auto& targets = services_.deviceServices.devices;
    if (targets.gDesignTargetMgr) return;
    targets.initDesignTargetMgr();
    if (targets.gDesignTargetMgr) return;
    here([&] { user_.MsgBox(build_texts::kNoDesignTargets, vbCritical, build_texts::kTitle); });
}

bool frmValidate::scanForBroken(Procedure& here, const Project& project) {
    bool good = true;
    for (const auto& reference : here.value([&] { return project->References()->items(); }))
        if (here.test([&] { return reference->IsBroken(); })) {
            ShowValidationError(project, build_texts::kReferenceMissing, "", 0, message_numbers::kReferenceMissing);
            good = false;
        }
    return good;
}

/// Reads the device's configuration and its controls for the side effect: it reports controls that this machine lacks.
void frmValidate::readDeviceConfig(Procedure& here) {
    here([&] {
        clsDeviceConfig config{services_.deviceServices};
        config.ReadDeviceConfig(deviceKey_);
        Array<ValidTavlet> tavlets;
        config.GetDeviceTavlets(tavlets);
    });
}

/// A module that the target does not list as a reference is accepted only if the project has no reference to it and the
/// target lists it as a module.
bool frmValidate::isSupported(Procedure& here, const Project& project, const basic::Ref<IQLDesignTarget>& target,
                              const std::string& moduleId) {
    if (here.test([&] { return target->ValidateReference(moduleId).known(); })) return true;
    for (const auto& reference : here.value([&] { return project->References()->items(); }))
        if (here.test([&] { return reference->Guid() == moduleId; })) return false;
    return !here.test([&] { return !target->FindModule(moduleId); });
}

void frmValidate::reportNotSupported(Procedure& here, const Project& project, const basic::Ref<IQLDesignTarget>& target,
                                     const std::string& moduleId) {
    const auto name = GetTypeLibDisplayName(moduleId);
    here([&] {
        const auto text =
            fmt::format(build_texts::kComponentNotSupported, "name"_a = name, "platform"_a = target->PlatformName());
        ShowValidationError(project, text, "", 0, message_numbers::kComponentNotSupported);
    });
}

std::string frmValidate::GetTypeLibDisplayName(const std::string& guid) {
    Procedure here{services_.errors, "frmValidate.GetTypeLibDisplayName"};
    std::string name = fmt::format(build_texts::kUnknownLibrary, "guid"_a = guid);
    auto& registry = services_.registry;
    const RegistryKey key{registry,
                          registry.OpenKey(HKEY_LOCAL_MACHINE, "Software\\Quinloft\\Modules\\" + guid, KEY_READ)};
    if (!key) return name;
    const auto path = registry.GetStringValue(key.handle(), "").text;
    if (path.empty()) return name;
    here([&] {
        const auto library = services_.platform.classes.TypeLibInfoFromFile(path);
        if (!library->HelpString.empty()) name = library->HelpString;
    });
    return name;
}

} // namespace fernwick
