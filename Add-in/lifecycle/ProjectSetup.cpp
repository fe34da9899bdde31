#include "Add-in/lifecycle/ProjectSetup.h"
#include "Add-in/lifecycle/lifecycle_texts.h"

namespace fernwick {

void ProjectSetup::SetupProject(const basic::Ref<clsQLProject>& project) {
    Procedure here{use_.devices.errors, "modProjectHandler.SetupProject"};
    leaveActiveProject(here);
    use_.projects.gCurrentProject = project->VBProject();
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
            if (use_.devices.devices.GetNumDesignTargets() == 0)
                use_.removal.RemoveProject(project->VBProject(), true, ""); // nothing here can serve it
        }
    }
    here([&] { use_.devices.user.SetCursor(vbArrow); });
}

void ProjectSetup::leaveActiveProject(Procedure& here) {
    const auto active = use_.projects.gCurrentProject;
    if (!active || !here.test([&] { return use_.addIn.gVBInstance->VBProjects()->Count() >= 2; })) return;
    const auto left = use_.projects.FindQLProject(active); // it may be the one that has just been closed
    if (left && left->IsQuinloftProject()) use_.messages.SaveCompileErrorWindowState(active);
}

bool ProjectSetup::hasDevice(const basic::Ref<clsQLProject>& project) {
    const std::string device = project->TargetDevice();
    return !device.empty() && use_.devices.devices.IsValidDevice(device);
}

void ProjectSetup::chooseDevice(Procedure& here, const basic::Ref<clsQLProject>& project) {
    auto& devices = use_.devices.devices;
    const auto count = devices.GetNumDesignTargets();
    const auto valid = devices.CreateValidDesignTargetList(false);
    if (!valid.empty() && count == 1)
        takeOnlyTarget(here, project, valid.front());
    else if (!valid.empty())
        askForTarget(here, project);

    const std::string device = project->TargetDevice();
    if (!device.empty() && !devices.IsValidDevice(device)) {
        here([&] {
            use_.devices.user.MsgBox(device + lifecycle_texts::kDeviceNotInstalled, vbExclamation,
                                     lifecycle_texts::kTitle);
        });
        askForTarget(here, project);
    }
    if (!project->TargetDevice().empty()) prepareForDevice(here, project);
}

void ProjectSetup::takeOnlyTarget(Procedure& here, const basic::Ref<clsQLProject>& project, const std::string& key) {
    clsDeviceConfig device{use_.devices};
    device.ReadDeviceConfig(key);
    here([&] { project->SetProjectForDeviceConfig(device); });
}

void ProjectSetup::askForTarget(Procedure& here, const basic::Ref<clsQLProject>& project) {
    use_.chooseTarget.SetWorkingProject(project);
    here([&] { use_.chooseTarget.ShowModal(); });
}

void ProjectSetup::prepareForDevice(Procedure& here, const basic::Ref<clsQLProject>& project) {
    here([&] { project->SaveFiles(); });
    here([&] { project->SetupProjectToolbar(); });
    here([&] { project->SetupProjectReferences(); });
    here([&] { use_.commands.SetupDefaultTargetName(project->TargetDevice()); });
}

void ProjectSetup::switchOn(Procedure& here, const basic::Ref<clsQLProject>& project) {
    here([&] { use_.commands.EnableQuinloftMenu(); });
    here([&] { use_.commands.EnableQuinloftToolbar(); });
    here([&] { use_.commands.EnableSupportToolbar(); });
    here([&] { use_.commands.InitZoomWindow(); });
    const auto vbProject = project->VBProject();
    use_.messages.ReadProjectErrors(vbProject);
    if (use_.messages.GetCompileErrorWindowState(vbProject))
        use_.messages.ShowProjectCompileErrors(vbProject, true);
    else
        use_.messages.HideProjectCompileErrors();
    here([&] { use_.commands.SetupDefaultTargetName(project->TargetDevice()); });
    here([&] { project->PublishTavletStyle(); });
}

void ProjectSetup::switchOff(Procedure& here) {
    here([&] { use_.commands.DisableQuinloftMenu(); });
    here([&] { use_.commands.DisableQuinloftToolbar(); });
    here([&] { use_.commands.DisableSupportToolbar(); });
    use_.messages.HideProjectCompileErrors();
}

void ProjectSetup::StartProjectManager() {
    Procedure here{use_.devices.errors, "modProjectHandler.StartProjectManager"};
    if (here.test([&] { return use_.addIn.gVBInstance->VBProjects()->Count() < 1; }))
        return (void)here([&] { use_.commands.ShowProjectManagerOnDelay(); });

    const bool saved = use_.save.SaveProject(use_.projects.gCurrentProject, true, lifecycle_texts::kSaveBeforeManager,
                                             true, lifecycle_texts::kManagerWillNotOpen);
    if (!saved) return;
    if (use_.projects.gCurrentProject) closeActiveProject(here);
    here([&] { use_.commands.ShowProjectManagerOnDelay(); });
}

void ProjectSetup::closeActiveProject(Procedure& here) {
    const auto active = use_.projects.gCurrentProject;
    here([&] { use_.addIn.gVBInstance->ActiveVBProject(active); });
    if (here.test([&] { return active->IsDirty(); })) here([&] { active->IsDirty(false); });
    here([&] { use_.loop.DoEvents(); });
    here([&] { use_.commands.gFileFourthItem()->Execute(); });
    here([&] { use_.loop.DoEvents(); });
}

} // namespace fernwick
