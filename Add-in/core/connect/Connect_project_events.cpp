// The host's projects are added, removed, renamed and activated.
#include "Add-in/core/connect/Connect.h"

namespace fernwick {

/// DoEvents and dialogs process further events, so projects are removed only by the timer of frmProjectRemoval.
void Connect::ProjEventsHandler_ItemAdded(Project VBProject) {
    Procedure here{services_.errors, "Connect.ProjEventsHandler_ItemAdded"};
    here([&] { FileControlHandler = services_.addIn.gVBInstance->Events()->FileControlEvents(VBProject); });
    const auto project = services_.projects.AddToProjectsList(VBProject);
    if (!project) return;

    if (project->IsQuinloftProject() && project->HasOldFormat()) {
        here([&] { VBProject->IsDirty(false); });
        return services_.removal.RemoveProject(VBProject, true, ""); // the converter is started afterwards
    }
    if (project->IsStartUpProject()) {
        here([&] { services_.projectManager.ShowModal(); });
        return services_.removal.RemoveProject(VBProject, true, "");
    }
    services_.setup.SetupProject(project);
    if (!project->IsQuinloftProject()) return;
    watchAddedProject(here);
    here([&] { services_.loop.DoEvents(); });

    const std::string device = project->TargetDevice();
    if (!device.empty() && services_.devices.IsValidDevice(device))
        fitTemplate(here, project);
    else
        refuseDevice(here, project, device);
    here([&] { services_.toolbars.RestoreAllToolbarState(); });
}

void Connect::watchAddedProject(Procedure& here) {
    const basic::Ref<vbide::VBE> host = services_.addIn.gVBInstance;
    here([&] { FileControlHandler = host->Events()->FileControlEvents(host->ActiveVBProject()); });
    here([&] { CompsEventsHandler = host->Events()->VBComponentsEvents(host->ActiveVBProject()); });
    here([&] { RefEventsHandler = host->Events()->ReferencesEvents(host->ActiveVBProject()); });
}

/// A project from the host's template is replaced by one from the design target's template, which is then added here
/// and receives a first form.
void Connect::fitTemplate(Procedure& here, const QLProject& project) {
    const bool isNew = here.value([&] {
        const auto vbProject = project->VBProject();
        return TemplateReloadPending ||
               (vbProject->VBComponents()->Count() == 0 && services_.projects.ProjectIsFromTemplate(vbProject));
    });
    if (!isNew) return;
    const std::string targetsOwn = project->VBPTemplate();
    if (!targetsOwn.empty() && !TemplateReloadPending) {
        services_.removal.RemoveProject(project->VBProject(), true, targetsOwn);
        TemplateReloadPending = true;
        return;
    }
    if (TemplateReloadPending) adoptReloaded(here, project);
    addFirstForm(here, project);
}

/// Its stored values are the template's; values that exist only in memory are set here.
void Connect::adoptReloaded(Procedure& here, const QLProject& project) {
    TemplateReloadPending = false;
    project->OpenedFromQLTemplate(true);
    clsDeviceConfig device{services_.deviceServices};
    device.ReadDeviceConfig(project->TargetDevice());
    project->SaveFiles();
    here([&] { project->SetTemplateForDeviceConfig(device); });
    here([&] { project->SetupProjectToolbar(); });
    here([&] { project->SetupProjectReferences(); });
    here([&] { services_.menu.SetupDefaultTargetName(project->TargetDevice()); });
}

/// The form's own event gives it its size and font. A template may have replaced it by then, so the last component is
/// used.
void Connect::addFirstForm(Procedure& here, const QLProject& project) {
    project->InitDesignTarget();
    const auto components = here.value([&] { return project->VBProject()->VBComponents(); });
    here([&] { components->Add(vbide::vbext_ct_VBForm); });
    here([&] { components->StartUpObject({false, components->Item(components->Count())}); });
}

/// A project without a device is removed; for an unavailable device the user decides.
void Connect::refuseDevice(Procedure& here, const QLProject& project, const std::string& device) {
    const auto vbProject = project->VBProject();
    if (device.empty()) return services_.removal.RemoveProject(vbProject, true, "");
    if (services_.devices.GetNumDesignTargets() <= 0) return;

    auto& warning = services_.converterWarning;
    here([&] { warning.ShowModal(); });
    if (warning.openAnyway()) {
        watchProject(here, vbProject);
    } else {
        closeAdded(here, vbProject);
        if (!warning.newProjectFile().empty()) here([&] { openCopy(warning.newProjectFile()); });
    }
    warning.Unload();
}

/// The copy that the converter made of a project takes its place, unless the user keeps unsaved work of other projects.
void Connect::openCopy(const std::string& path) {
    const auto copy = services_.addIn.gVBInstance->VBProjects()->AddFromFile(path, true);
    if (copy) services_.converter.conversion().finishCopy(copy);
}

void Connect::closeAdded(Procedure& here, const Project& project) {
    here([&] { project->IsDirty(false); });
    here([&] { services_.loop.DoEvents(); });
    here([&] { services_.items.gFileFourthItem->Execute(); });
    here([&] { services_.loop.DoEvents(); });
}

/// At this point the host still counts the project being removed.
void Connect::ProjEventsHandler_ItemRemoved(Project VBProject) {
    Procedure here{services_.errors, "Connect.ProjEventsHandler_ItemRemoved"};
    QLProject project;
    if (here.test([&] { return !VBProject->Name().empty(); })) project = services_.projects.FindQLProject(VBProject);
    if (project && project->IsQuinloftProject() && !project->HasOldFormat()) keepState(here, project);
    if (here.test([&] { return services_.addIn.gVBInstance->VBProjects()->Count() == 1; })) {
        disableInterface(here);
        services_.messages.HideProjectCompileErrors();
    }
    if (project) services_.projects.RemoveFromProjectsList(VBProject);
}

void Connect::keepState(Procedure& here, const QLProject& project) {
    const auto vbProject = project->VBProject();
    if (services_.devices.IsValidDevice(project->TargetDevice()) && here.test([&] { return !vbProject->Saved(); })) {
        services_.messages.SaveCompileErrorWindowState(vbProject);
        if (here.test([&] { return !vbProject->Saved(); })) project->SaveFiles();
    }
    if (!project->IsStartUpProject() && services_.addIn.gConnectMode != vbide::vbext_cm_CommandLine)
        keepDesktopState(here, project);
}

/// Not at the command line, which must not overwrite the user's desktop settings.
void Connect::keepDesktopState(Procedure& here, const QLProject& project) {
    if (here.test([&] { return !services_.projects.ProjectIsFromTemplate(project->VBProject()); }))
        services_.recent.AddProjectToRecentList(project);
    here([&] { services_.toolbars.SaveAllToolbarState(); });
    services_.zoom.SaveZoomWindowState();
}

/// No trap. A renamed project gets a new module identifier.
void Connect::ProjEventsHandler_ItemRenamed(Project VBProject, const std::string& OldName) {
    const auto project = services_.projects.FindQLProject(VBProject);
    if (!project) return; // opened before the add-in was connected
    services_.projects.RenameProjectInList(VBProject, OldName);
    if (!OldName.empty()) project->CreateNewModId();
}

void Connect::ProjEventsHandler_ItemActivated(Project VBProject) {
    Procedure here{services_.errors, "Connect.ProjEventsHandler_ItemActivated"};
    here([&] { FileControlHandler = services_.addIn.gVBInstance->Events()->FileControlEvents(VBProject); });
    const auto project = services_.projects.FindQLProject(VBProject);
    if (!project) return;
    services_.setup.SetupProject(project);
    if (project->IsQuinloftProject()) watchProject(here, VBProject);
}

// ---- build
// -------------------------------------------------------------------------------------------------------------

bool Connect::isCurrentOurs() const {
    const auto project = services_.projects.FindQLProject(services_.projects.gCurrentProject);
    return project && project->IsQuinloftProject();
}

/// The menu is left unchanged while a project runs.
void Connect::BuildEventsHandler_EnterRunMode() {
    if (!isCurrentOurs()) return;
    services_.toolbars.DisableQuinloftToolbar();
    services_.toolbars.DisableSupportToolbar();
}

void Connect::BuildEventsHandler_EnterDesignMode() {
    if (!isCurrentOurs()) return;
    services_.toolbars.EnableQuinloftToolbar();
    services_.toolbars.EnableSupportToolbar();
}

} // namespace fernwick
