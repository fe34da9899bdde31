#include "Add-in/lifecycle/project_setup.h"
#include "Add-in/lifecycle/lifecycle_texts.h"

namespace fernwick {

void ProjectSetup::SetupProject(const basic::Ref<clsQLProject>& project) {
    Procedure here{services_.errors, "modProjectHandler.SetupProject"};
    leaveActiveProject(here);
    services_.projects.gCurrentProject = project->VBProject();
    if (project->IsStartUpProject()) return;

    if (!project->IsQuinloftProject()) {
        switchOff(here);
    } else {
        here([&] { project->CheckTwipsMatch(); });
        if (project->TargetDevice().empty()) chooseDevice(here, project);
        if (hasDevice(project)) {
            switchOn(here, project);
        } else {
            switchOff(here);
            if (services_.devices.GetNumDesignTargets() == 0)
                services_.removal.RemoveProject(project->VBProject(), true, ""); // there is no device for it
        }
    }
    here([&] { services_.user.SetCursor(vbArrow); });
}

void ProjectSetup::leaveActiveProject(Procedure& here) {
    const auto active = services_.projects.gCurrentProject;
    if (!active || !here.test([&] { return services_.addIn.gVBInstance->VBProjects()->Count() >= 2; })) return;
    const auto left = services_.projects.FindQLProject(active); // it may have just been closed
    if (left && left->IsQuinloftProject()) services_.messages.SaveCompileErrorWindowState(active);
}

bool ProjectSetup::hasDevice(const basic::Ref<clsQLProject>& project) {
    const std::string device = project->TargetDevice();
    return !device.empty() && services_.devices.IsValidDevice(device);
}

void ProjectSetup::chooseDevice(Procedure& here, const basic::Ref<clsQLProject>& project) {
    auto& devices = services_.devices;
    const auto count = devices.GetNumDesignTargets();
    const auto valid = devices.CreateValidDesignTargetList(false);
    if (!valid.empty() && count == 1)
        takeOnlyTarget(here, project, valid.front());
    else if (!valid.empty())
        askForTarget(here, project);

    const std::string device = project->TargetDevice();
    if (!device.empty() && !devices.IsValidDevice(device)) {
        here([&] {
            services_.user.MsgBox(device + lifecycle_texts::kDeviceNotInstalled, vbExclamation,
                                  lifecycle_texts::kTitle);
        });
        askForTarget(here, project);
    }
    if (!project->TargetDevice().empty()) prepareForDevice(here, project);
}

void ProjectSetup::takeOnlyTarget(Procedure& here, const basic::Ref<clsQLProject>& project, const std::string& key) {
    clsDeviceConfig device{services_.deviceServices};
    device.ReadDeviceConfig(key);
    here([&] { project->SetProjectForDeviceConfig(device); });
}

void ProjectSetup::askForTarget(Procedure& here, const basic::Ref<clsQLProject>& project) {
    services_.chooseTarget.SetWorkingProject(project);
    here([&] { services_.chooseTarget.ShowModal(); });
}

void ProjectSetup::prepareForDevice(Procedure& here, const basic::Ref<clsQLProject>& project) {
    here([&] { project->SaveFiles(); });
    here([&] { project->SetupProjectToolbar(); });
    here([&] { project->SetupProjectReferences(); });
    here([&] { services_.menu.SetupDefaultTargetName(project->TargetDevice()); });
}

void ProjectSetup::switchOn(Procedure& here, const basic::Ref<clsQLProject>& project) {
    here([&] { services_.menu.EnableQuinloftMenu(); });
    here([&] { services_.toolbars.EnableQuinloftToolbar(); });
    here([&] { services_.toolbars.EnableSupportToolbar(); });
    services_.zoom.InitZoomWindow();
    const auto vbProject = project->VBProject();
    services_.messages.ReadProjectErrors(vbProject);
    if (services_.messages.GetCompileErrorWindowState(vbProject))
        services_.messages.ShowProjectCompileErrors(vbProject, true);
    else
        services_.messages.HideProjectCompileErrors();
    here([&] { services_.menu.SetupDefaultTargetName(project->TargetDevice()); });
    here([&] { project->PublishTavletStyle(); });
}

void ProjectSetup::switchOff(Procedure& here) {
    here([&] { services_.menu.DisableQuinloftMenu(); });
    here([&] { services_.toolbars.DisableQuinloftToolbar(); });
    here([&] { services_.toolbars.DisableSupportToolbar(); });
    services_.messages.HideProjectCompileErrors();
}

void ProjectSetup::StartProjectManager() {
    Procedure here{services_.errors, "modProjectHandler.StartProjectManager"};
    if (here.test([&] { return services_.addIn.gVBInstance->VBProjects()->Count() < 1; }))
        return services_.projectManager.ShowOnDelay();

    const bool saved =
        services_.save.SaveProject(services_.projects.gCurrentProject, true, lifecycle_texts::kSaveBeforeManager, true,
                                   lifecycle_texts::kManagerWillNotOpen);
    if (!saved) return;
    if (services_.projects.gCurrentProject) closeActiveProject(here);
    services_.projectManager.ShowOnDelay();
}

void ProjectSetup::closeActiveProject(Procedure& here) {
    const auto active = services_.projects.gCurrentProject;
    here([&] { services_.addIn.gVBInstance->ActiveVBProject(active); });
    if (here.test([&] { return active->IsDirty(); })) here([&] { active->IsDirty(false); });
    here([&] { services_.loop.DoEvents(); });
    here([&] { services_.items.gFileFourthItem->Execute(); });
    here([&] { services_.loop.DoEvents(); });
}

} // namespace fernwick
