#include "Add-in/lifecycle/device_references.h"
#include <algorithm>

namespace fernwick {

namespace {

bool isControlLibrary(const Array<ValidTavlet>& tavlets, const std::string& name) {
    return std::any_of(tavlets.begin(), tavlets.end(),
                       [&](const ValidTavlet& tavlet) { return tavlet.TypeLibName == name; });
}

bool isAccepted(const designtargetaccess::IQLDesignTarget& target, const Array<ValidTavlet>& tavlets,
                const vbide::Reference& reference) {
    const auto guid = reference.Guid();
    return target.ValidateReference(guid.empty() ? reference.Name() : guid).known() ||
           isControlLibrary(tavlets, reference.Name());
}

} // namespace

ReferenceList ScanReferences(Procedure& here, const DeviceServices& services,
                             const basic::Ref<vbide::VBProject>& project, const std::string& key) {
    clsDeviceConfig device{services};
    device.ReadDeviceConfig(key);
    Array<ValidTavlet> tavlets;
    device.GetDeviceTavlets(tavlets);
    const auto target = here.value([&] { return services.devices.GetDesignTarget(key); });
    ReferenceList invalid;
    if (!target || device.RequiredPipeProgID.empty() || tavlets.begin() == tavlets.end()) return invalid;
    for (const auto& reference : here.value([&] { return project->References()->items(); }))
        here([&] {
            if (!reference->BuiltIn() && !isAccepted(*target, tavlets, *reference)) invalid.push_back(reference);
        });
    return invalid;
}

} // namespace fernwick
