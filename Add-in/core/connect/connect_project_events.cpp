// What happens when the host's projects come, go, change their names and become the active one.
#include "Add-in/core/connect/Connect.h"

namespace fernwick {

/// DoEvents and dialogs let further events in: what makes a project go is left to the removal's timer.
void Connect::ProjEventsHandler_ItemAdded(Project VBProject) {
    Procedure here{use_.errors, "Connect.ProjEventsHandler_ItemAdded"};
    here([&] { FileControlHandler = use_.addIn.gVBInstance->Events()->FileControlEvents(VBProject); });
    const auto project = use_.projects.AddToProjectsList(VBProject);
    if (!project) return;

    if (project->IsQuinloftProject() && project->HasOldFormat()) {
        here([&] { VBProject->IsDirty(false); });
        return use_.removal.RemoveProject(VBProject, true, ""); // the converter follows
    }
    if (project->IsStartUpProject()) {
        here([&] { use_.commands.ShowProjectManager(); });
        return use_.removal.RemoveProject(VBProject, true, "");
    }
    use_.setup.SetupProject(project);
    if (!project->IsQuinloftProject()) return;
    watchAddedProject(here);
    here([&] { use_.platform.loop.DoEvents(); });

    const std::string device = project->TargetDevice();
    if (!device.empty() && use_.devices.IsValidDevice(device))
        fitTemplate(here, project);
    else
        refuseDevice(here, project, device);
    here([&] { use_.commands.RestoreAllToolbarState(); });
}

void Connect::watchAddedProject(Procedure& here) {
    const auto host = use_.addIn.gVBInstance;
    here([&] { FileControlHandler = host->Events()->FileControlEvents(host->ActiveVBProject()); });
    here([&] { CompsEventsHandler = host->Events()->VBComponentsEvents(host->ActiveVBProject()); });
    here([&] { RefEventsHandler = host->Events()->ReferencesEvents(host->ActiveVBProject()); });
}

/// The host's own template makes way for the design target's, which arrives here in its turn and gets its first form.
void Connect::fitTemplate(Procedure& here, const QLProject& project) {
    const bool isNew = here.value([&] {
        const auto vbProject = project->VBProject();
        return TemplateReloadPending ||
               (vbProject->VBComponents()->Count() == 0 && use_.projects.ProjectIsFromTemplate(vbProject));
    });
    if (!isNew) return;
    const std::string targetsOwn = project->VBPTemplate();
    if (!targetsOwn.empty() && !TemplateReloadPending) {
        use_.removal.RemoveProject(project->VBProject(), true, targetsOwn);
        TemplateReloadPending = true;
        return;
    }
    if (TemplateReloadPending) takeUpReloaded(here, project);
    addFirstForm(here, project);
}

/// Its values are the template's; what lives in memory alone is not there yet.
void Connect::takeUpReloaded(Procedure& here, const QLProject& project) {
    TemplateReloadPending = false;
    project->OpenedFromQLTemplate(true);
    clsDeviceConfig device{use_.deviceServices};
    device.ReadDeviceConfig(project->TargetDevice());
    project->SaveFiles();
    here([&] { project->SetTemplateForDeviceConfig(device); });
    here([&] { project->SetupProjectToolbar(); });
    here([&] { project->SetupProjectReferences(); });
    here([&] { use_.commands.SetupDefaultTargetName(project->TargetDevice()); });
}

/// Its own event gives the form its shape. A template may have taken the form's place by now: it is the last one.
void Connect::addFirstForm(Procedure& here, const QLProject& project) {
    project->InitDesignTarget();
    const auto components = here.value([&] { return project->VBProject()->VBComponents(); });
    here([&] { components->Add(vbide::vbext_ct_VBForm); });
    here([&] { components->StartUpObject({false, components->Item(components->Count())}); });
}

/// A project without a device goes. One whose device isn't available here is the user's to decide about.
void Connect::refuseDevice(Procedure& here, const QLProject& project, const std::string& device) {
    const auto vbProject = project->VBProject();
    if (device.empty()) return use_.removal.RemoveProject(vbProject, true, "");
    if (use_.devices.GetNumDesignTargets() <= 0) return;

    const auto choice = here.value([&] { return use_.commands.AskAboutUnknownDevice(vbProject); });
    if (choice.accepted) return watchProject(here, vbProject);
    closeAdded(here, vbProject);
    if (!choice.replacementPath.empty())
        here([&] { use_.addIn.gVBInstance->VBProjects()->AddFromFile(choice.replacementPath, true); });
}

void Connect::closeAdded(Procedure& here, const Project& project) {
    here([&] { project->IsDirty(false); });
    here([&] { use_.platform.loop.DoEvents(); });
    here([&] { use_.commands.gFileFourthItem()->Execute(); });
    here([&] { use_.platform.loop.DoEvents(); });
}

/// The host still counts the project that goes.
void Connect::ProjEventsHandler_ItemRemoved(Project VBProject) {
    Procedure here{use_.errors, "Connect.ProjEventsHandler_ItemRemoved"};
    QLProject project;
    if (here.test([&] { return !VBProject->Name().empty(); })) project = use_.projects.FindQLProject(VBProject);
    if (project && project->IsQuinloftProject() && !project->HasOldFormat()) keepState(here, project);
    if (here.test([&] { return use_.addIn.gVBInstance->VBProjects()->Count() == 1; })) {
        disableInterface(here);
        use_.messages.HideProjectCompileErrors();
    }
    if (project) use_.projects.RemoveFromProjectsList(VBProject);
}

void Connect::keepState(Procedure& here, const QLProject& project) {
    const auto vbProject = project->VBProject();
    if (use_.devices.IsValidDevice(project->TargetDevice()) && here.test([&] { return !vbProject->Saved(); })) {
        use_.messages.SaveCompileErrorWindowState(vbProject);
        if (here.test([&] { return !vbProject->Saved(); })) project->SaveFiles();
    }
    if (!project->IsStartUpProject() && use_.addIn.gConnectMode != vbide::vbext_cm_CommandLine)
        keepDesktopState(here, vbProject);
}

/// A run of the command line has none of it, and must not replace what a user arranged at the desktop.
void Connect::keepDesktopState(Procedure& here, const Project& vbProject) {
    if (here.test([&] { return !use_.projects.ProjectIsFromTemplate(vbProject); }))
        here([&] { use_.commands.AddProjectToRecentList(vbProject); });
    here([&] { use_.commands.SaveAllToolbarState(); });
    here([&] { use_.commands.SaveZoomWindowState(); });
}

/// No trap. A new name makes another dependency of the project.
void Connect::ProjEventsHandler_ItemRenamed(Project VBProject, const std::string& OldName) {
    const auto project = use_.projects.FindQLProject(VBProject);
    if (!project) return; // open since before the add-in came
    use_.projects.RenameProjectInList(VBProject, OldName);
    if (!OldName.empty()) project->CreateNewModId();
}

void Connect::ProjEventsHandler_ItemActivated(Project VBProject) {
    Procedure here{use_.errors, "Connect.ProjEventsHandler_ItemActivated"};
    here([&] { FileControlHandler = use_.addIn.gVBInstance->Events()->FileControlEvents(VBProject); });
    const auto project = use_.projects.FindQLProject(VBProject);
    if (!project) return;
    use_.setup.SetupProject(project);
    if (project->IsQuinloftProject()) watchProject(here, VBProject);
}

// ---- build -------------------------------------------------------------------------------------------------------------

bool Connect::isCurrentOurs() const {
    const auto project = use_.projects.FindQLProject(use_.projects.gCurrentProject);
    return project && project->IsQuinloftProject();
}

/// The menu stays as it is while a project runs.
void Connect::BuildEventsHandler_EnterRunMode() {
    if (!isCurrentOurs()) return;
    use_.commands.DisableQuinloftToolbar();
    use_.commands.DisableSupportToolbar();
}

void Connect::BuildEventsHandler_EnterDesignMode() {
    if (!isCurrentOurs()) return;
    use_.commands.EnableQuinloftToolbar();
    use_.commands.EnableSupportToolbar();
}

} // namespace fernwick
