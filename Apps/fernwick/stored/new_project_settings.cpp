#include "Apps/fernwick/stored/new_project_settings.h"
#include "Add-in/devices/clsDeviceConfig.h"
#include "Apps/fernwick/options/exit_status.h"
#include <fmt/format.h>

namespace cli {

namespace {

using AllValues = std::map<std::string, StoredSetting::Values>;
using VBProject = basic::Ref<vbide::VBProject>;

AllValues valuesWithoutProject() {
    AllValues values;
    for (const auto& setting : storedSettings()) values[setting.name] = setting.otherwise;
    return values;
}

/// A setting of the user does not come from a project.
AllValues valuesOf(const SettingPlace& place) {
    AllValues values;
    for (const auto& setting : storedSettings())
        values[setting.name] = setting.isOfUser ? setting.otherwise : setting.read(place);
    return values;
}

/// The device's own template, else the one of all Fernwick projects.
std::string templateFor(Session& session, const std::string& key) {
    auto& files = session.machine().platform().files;
    if (!key.empty()) {
        session.settings()->InitDesignTarget();
        const auto own = session.settings()->VBPTemplate();
        if (files.FileExists(own)) return own;
    }
    return files.BuildPath(session.host().TemplatePath(), "Projects/Fernwick Project.vbp");
}

/// Returns null for a template that is not installed.
VBProject openTemplate(Session& session, const std::string& path) {
    VBProject project;
    (void)basic::attempt([&] { project = session.host().VBProjects()->AddFromTemplate(path, false); });
    return project;
}

void assignDevice(Session& session, fernwick::clsQLProject& project, const std::string& key) {
    fernwick::clsDeviceConfig device{session.addIn().deviceServices};
    device.ReadDeviceConfig(key);
    project.SetProjectForDeviceConfig(device);
}

} // namespace

AllValues newProjectSettings(Session& session) {
    auto& addIn = session.addIn();
    const auto key = session.settings()->TargetDevice();
    if (!key.empty() && !addIn.devices.IsValidDevice(key))
        throw Refusal(
            kMachineTrouble,
            fmt::format("{}: its device {} is not installed or not usable; see fernwick targets", session.path(), key));
    const auto made = openTemplate(session, templateFor(session, key));
    if (!made) return valuesWithoutProject();
    const auto project = addIn.projects.AddToProjectsList(made);
    if (!key.empty()) assignDevice(session, *project, key);
    const auto& screen = session.machine().platform().screen; // the add-in stores it when a project is first opened
    project->TwipsPerPixelX(screen.TwipsPerPixelX());
    project->TwipsPerPixelY(screen.TwipsPerPixelY());
    auto values = valuesOf({*project, session.machine().registry(), session.machine().classes()});
    addIn.projects.RemoveFromProjectsList(made);
    made->IsDirty(false);
    session.host().VBProjects()->Remove(made);
    return values;
}

} // namespace cli
