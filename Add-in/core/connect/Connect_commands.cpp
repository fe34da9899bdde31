// Commands that act on projects and devices.
#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/connect/connect_texts.h"

namespace fernwick {

/// Returns Nothing, after a report, if the active project is not listed.
basic::Ref<clsQLProject> Connect::activeProject() {
    return services_.projects.GetQLProject(services_.addIn.gVBInstance->ActiveVBProject());
}

void Connect::CompileProjectHandler_Click() {
    Procedure here{services_.errors, "Connect.CompileProjectHandler_Click"};
    here([&] { services_.compile.CompileProject(services_.addIn.gVBInstance->ActiveVBProject()); });
}

/// Deploys to the project's own design target without asking.
void Connect::ToolDeployProjectHandler_Click() {
    Procedure here{services_.errors, "Connect.ToolDeployProjectHandler_Click"};
    const auto project = here.value([&] { return activeProject(); });
    here([&] { services_.sendToDevice.SendProjectToDevice(project, false, project->TargetDevice()); });
}

void Connect::CompileErrorWindowHandler_Click() {
    Procedure here{services_.errors, "Connect.CompileErrorWindowHandler_Click"};
    here([&] { services_.messages.ShowProjectCompileErrors(services_.addIn.gVBInstance->ActiveVBProject(), false); });
}

/// Errors are reported under the command's former name.
void Connect::QuinloftSettingsHandler_Click() {
    Procedure here{services_.errors, "Connect.ProjectPropertiesHandler_Click"};
    here([&] { services_.user.SetCursor(vbHourglass); });
    const auto project = here.value([&] { return activeProject(); });
    here([&] { services_.settings.ShowQuinloftSettings(project->VBProject(), kAnySettingsPage, false); });
}

void Connect::DeployDeviceHandler(const Item& item) {
    const auto project = activeProject();
    services_.sendToDevice.SendProjectToDevice(project, false, item->Tag());
}

void Connect::MakePackageHandler(const Item& item) {
    const auto project = activeProject();
    services_.sendToDevice.SendProjectToDevice(project, true, item->Tag());
}

void Connect::InstallVMForDevice(const Item& item) { services_.sendRuntime.SendRuntimeToDevice(item->Tag()); }

void Connect::DeployAllDevices_Click() {
    if (!hasMyDevices()) return;
    const auto project = activeProject();
    toMyDevices([&](const std::string& device) { services_.sendToDevice.SendProjectToDevice(project, false, device); });
}

void Connect::MakePackageAllDevices_Click() {
    if (!hasMyDevices()) return;
    const auto project = activeProject();
    toMyDevices([&](const std::string& device) { services_.sendToDevice.SendProjectToDevice(project, true, device); });
}

void Connect::InstallVMAllDevices_Click() {
    if (!hasMyDevices()) return;
    toMyDevices([&](const std::string& device) { services_.sendRuntime.SendRuntimeToDevice(device); });
}

/// Asks for devices until there are some or the user declines. The runtime is installed without a project, so the devices
/// can be chosen without one.
bool Connect::hasMyDevices() {
    while (services_.prefs.gMyDevices.empty()) {
        const int answer =
            services_.user.MsgBox(connect_texts::kNoDevices, vbInformation + vbYesNo, connect_texts::kNoDevicesTitle);
        if (answer != vbYes) return false;
        services_.user.SetCursor(vbHourglass);
        const auto project = services_.projects.FindQLProject(services_.addIn.gVBInstance->ActiveVBProject());
        services_.settings.ShowQuinloftSettings(project ? project->VBProject() : nullptr, kMyDevicesPage, false);
    }
    return true;
}

/// Acts on each device in the current list. A run may change the list: error 9 for an entry that has been removed.
void Connect::toMyDevices(const std::function<void(const std::string& device)>& act) {
    const auto& devices = services_.prefs.gMyDevices;
    for (std::size_t i = 0, count = devices.size(); i < count; ++i) {
        if (i >= devices.size()) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
        act(std::string(devices[i]));
    }
}

} // namespace fernwick
