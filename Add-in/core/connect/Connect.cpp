#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/connect/connect_texts.h"

namespace fernwick {

namespace {
constexpr char kResourceEditor[] = "ResEdit6.Connect";
}

Connect::Connect(const ConnectServices& services)
    : services_(services),
      replacementsEnded_(services.removal.ReplacementsEnded.connect([this] { TemplateReloadPending = false; })) {}

void Connect::IDTExtensibility_OnConnection(const Host& VBInst, vbide::vbext_ConnectMode ConnectMode,
                                            const basic::Ref<vbide::AddIn>& AddInInst) {
    LastControlEventTime = services_.clock.Now();
    services_.devices.initDesignTargetMgr();
    services_.prefs.loadMyDevices();

    Procedure here{services_.errors, "Connect.IDTExtensibility_OnConnection(ByVal_VBInst_As_Object,_"
                                     "ByVal_ConnectMode_As_vbext_ConnectMode,_ByVal_AddInInst_As_VBIDE.AddIn,_custom"};
    here([&] { services_.addIn.SaveVBinstPointer(VBInst); });
    services_.addIn.gConnectMode = ConnectMode;
    here([&] { BuildEventsHandler = VBInst->Events()->VBBuildEvents(); });
    here([&] { services_.removal.Load(); });
    here([&] { ProjEventsHandler = VBInst->Events()->VBProjectsEvents(); });
    here([&] { GlobalFileControlHandler = VBInst->Events()->FileControlEvents(nullptr); });
    here([&] { services_.clipboard.BackupClipboardData(); });
    services_.references.SaveQuinloftClasses();
    if (ConnectMode != vbide::vbext_cm_External) buildInterface(here, VBInst, AddInInst);
    here([&] { services_.clipboard.RestoreClipboardData(); });
    adoptActiveProject(here, VBInst);
    if (here.test([&] { return services_.prefs.GetStartTutorial(); }))
        here([&] { services_.gettingStarted.ShowModal(); });
}

void Connect::buildInterface(Procedure& here, const Host& VBInst, const basic::Ref<vbide::AddIn>& AddInInst) {
    buildMenu(here, VBInst, AddInInst);
    if (here.test([&] { return services_.toolbars.SetupQuinloftToolbar(); }))
        SetupToolbarHandlers(VBInst);
    else
        failStart(here, connect_texts::kNoToolbar, AddInInst);
    if (here.test([&] { return services_.toolbars.SetupSupportToolbar(); }))
        SetupSupportToolbarHandlers(VBInst);
    else
        failStart(here, connect_texts::kNoSupportToolbar, AddInInst);
    services_.messages.createToolWindow();
    services_.zoom.createZoomWindow();
}

void Connect::buildMenu(Procedure& here, const Host& VBInst, const basic::Ref<vbide::AddIn>& AddInInst) {
    if (here.test([&] { return !services_.menu.SetUpQuinloftMenu(VBInst); }))
        return failStart(here, connect_texts::kNoMenu, AddInInst);
    SetupMenuHandlers(VBInst);
    connectSiblings(here, VBInst);
}

/// Connects the other Quinloft add-ins and disconnects the resource editor until OnStartupComplete.
void Connect::connectSiblings(Procedure& here, const Host& VBInst) {
    for (const auto& sibling : here.value([&] { return VBInst->Addins()->items(); })) {
        const auto isCompanion = [&] {
            const std::string progId = sibling->ProgId();
            return progId == "QLProjectImport.Connect" || progId == "QLVBWirelessServices.Connect";
        };
        if (here.test(isCompanion)) here([&] { sibling->Connect(true); });
        if (here.test([&] { return sibling->ProgId() == kResourceEditor && sibling->Connect(); })) {
            here([&] { sibling->Connect(false); });
            ResEditWasConnected = true;
        }
    }
}

void Connect::failStart(Procedure& here, const char* step, const basic::Ref<vbide::AddIn>& AddInInst) {
    here([&] {
        services_.user.MsgBox(connect_texts::kFailedStepBefore + std::string(step) + connect_texts::kFailedStepAfter,
                              vbCritical, connect_texts::kTitle);
    });
    here([&] { AddInInst->Connect(false); });
}

/// Other open projects are unknown until the host reports them.
void Connect::adoptActiveProject(Procedure& here, const Host& VBInst) {
    if (here.test([&] { return VBInst->VBProjects()->Count() == 0; })) return disableInterface(here);

    const auto active = here.value([&] { return VBInst->ActiveVBProject(); });
    const auto project = services_.projects.AddToProjectsList(active);
    if (!project) return disableInterface(here);
    services_.setup.SetupProject(project);
    if (!project->IsQuinloftProject()) return disableInterface(here);
    watchProject(here, project->VBProject());
    watchSelectedForm(here, VBInst);
}

void Connect::watchProject(Procedure& here, const Project& project) {
    const basic::Ref<vbide::VBE> host = services_.addIn.gVBInstance;
    here([&] { CompsEventsHandler = host->Events()->VBComponentsEvents(project); });
    here([&] { RefEventsHandler = host->Events()->ReferencesEvents(project); });
}

void Connect::watchSelectedForm(Procedure& here, const Host& VBInst) {
    const auto designerIsOpen = [&] {
        const auto selected = VBInst->SelectedVBComponent();
        return selected && selected->Type() == vbide::vbext_ct_VBForm && selected->HasOpenDesigner();
    };
    if (here.test(designerIsOpen)) here([&] { watchDesigner(VBInst->SelectedVBComponent()); });
}

void Connect::watchDesigner(const Component& form) {
    const auto project = form->VBE()->ActiveVBProject();
    const auto designer = form->Designer();
    ControlsEventsHandler = services_.addIn.gVBInstance->Events()->VBControlsEvents(project, designer);
    watchedDesigner_ = designer;
}

void Connect::disableInterface(Procedure& here) {
    here([&] { services_.menu.DisableQuinloftMenu(); });
    here([&] { services_.toolbars.DisableQuinloftToolbar(); });
    here([&] { services_.toolbars.DisableSupportToolbar(); });
}

/// The tool windows, the environment variable and the siblings are left unchanged.
void Connect::IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode) {
    Procedure here{services_.errors, "Connect.IDTExtensibility_OnDisconnection("
                                     "ByVal_RemoveMode_As_vbext_DisconnectMode,_custom"};
    ProjEventsHandler = nullptr;
    here([&] { services_.menu.RemoveQuinloftMenu(); });
    here([&] { services_.toolbars.RemoveQuinloftToolbar(); });
    here([&] { services_.toolbars.RemoveSupportToolbar(); });
    services_.projects.ClearProjectsList();
}

void Connect::IDTExtensibility_OnStartupComplete() {
    Procedure here{services_.errors, "Connect.IDTExtensibility_OnStartupComplete"};
    if (!ResEditWasConnected) return;
    for (const auto& sibling : here.value([&] { return services_.addIn.gVBInstance->Addins()->items(); }))
        if (here.test([&] { return sibling->ProgId() == kResourceEditor; })) here([&] { sibling->Connect(true); });
}

} // namespace fernwick
