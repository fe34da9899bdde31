#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/connect/connect_texts.h"

namespace fernwick {

namespace {
constexpr char kResourceEditor[] = "ResEdit6.Connect";
}

void Connect::IDTExtensibility_OnConnection(const Host& VBInst, vbide::vbext_ConnectMode ConnectMode,
                                            const basic::Ref<vbide::AddIn>& AddInInst) {
    LastControlEventTime = use_.platform.clock.Now();
    use_.devices.initDesignTargetMgr();
    use_.prefs.loadMyDevices();

    Procedure here{use_.errors, "Connect.IDTExtensibility_OnConnection(ByVal_VBInst_As_Object,_"
                                "ByVal_ConnectMode_As_vbext_ConnectMode,_ByVal_AddInInst_As_VBIDE.AddIn,_custom"};
    here([&] { use_.addIn.SaveVBinstPointer(VBInst); });
    use_.addIn.gConnectMode = ConnectMode;
    here([&] { BuildEventsHandler = VBInst->Events()->VBBuildEvents(); });
    here([&] { use_.removal.Load(); });
    here([&] { ProjEventsHandler = VBInst->Events()->VBProjectsEvents(); });
    here([&] { GlobalFileControlHandler = VBInst->Events()->FileControlEvents(nullptr); });
    here([&] { use_.commands.BackupClipboardData(); });
    use_.references.SaveQuinloftClasses();
    if (ConnectMode != vbide::vbext_cm_External) buildInterface(here, VBInst, AddInInst);
    here([&] { use_.commands.RestoreClipboardData(); });
    takeUpActiveProject(here, VBInst);
    if (here.test([&] { return use_.prefs.GetStartTutorial(); })) here([&] { use_.commands.ShowGettingStarted(); });
}

void Connect::buildInterface(Procedure& here, const Host& VBInst, const basic::Ref<vbide::AddIn>& AddInInst) {
    buildMenu(here, VBInst, AddInInst);
    if (here.test([&] { return use_.commands.SetupQuinloftToolbar(); }))
        SetupToolbarHandlers(VBInst);
    else
        failStart(here, connect_texts::kNoToolbar, AddInInst);
    if (here.test([&] { return use_.commands.SetupSupportToolbar(); }))
        SetupSupportToolbarHandlers(VBInst);
    else
        failStart(here, connect_texts::kNoSupportToolbar, AddInInst);
    use_.messages.createToolWindow();
    here([&] { use_.commands.createZoomWindow(); });
}

void Connect::buildMenu(Procedure& here, const Host& VBInst, const basic::Ref<vbide::AddIn>& AddInInst) {
    if (here.test([&] { return !use_.commands.SetUpQuinloftMenu(VBInst); }))
        return failStart(here, connect_texts::kNoMenu, AddInInst);
    SetupMenuHandlers(VBInst);
    meetSiblings(here, VBInst);
}

/// Our own companions come up; the resource editor waits until the start is complete.
void Connect::meetSiblings(Procedure& here, const Host& VBInst) {
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
        use_.platform.interaction.MsgBox(connect_texts::kFailedStepBefore + std::string(step) +
                                             connect_texts::kFailedStepAfter,
                                         vbCritical, connect_texts::kTitle);
    });
    here([&] { AddInInst->Connect(false); });
}

/// Other open projects stay unknown until the host reports them.
void Connect::takeUpActiveProject(Procedure& here, const Host& VBInst) {
    if (here.test([&] { return VBInst->VBProjects()->Count() == 0; })) return disableInterface(here);

    const auto active = here.value([&] { return VBInst->ActiveVBProject(); });
    const auto project = use_.projects.AddToProjectsList(active);
    if (!project) return disableInterface(here);
    use_.setup.SetupProject(project);
    if (!project->IsQuinloftProject()) return disableInterface(here);
    watchProject(here, project->VBProject());
    watchSelectedForm(here, VBInst);
}

void Connect::watchProject(Procedure& here, const Project& project) {
    const auto host = use_.addIn.gVBInstance;
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
    ControlsEventsHandler = use_.addIn.gVBInstance->Events()->VBControlsEvents(project, form->Designer());
}

void Connect::disableInterface(Procedure& here) {
    here([&] { use_.commands.DisableQuinloftMenu(); });
    here([&] { use_.commands.DisableQuinloftToolbar(); });
    here([&] { use_.commands.DisableSupportToolbar(); });
}

/// The tool windows, the environment variable and the siblings stay as they are.
void Connect::IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode) {
    Procedure here{use_.errors, "Connect.IDTExtensibility_OnDisconnection("
                                "ByVal_RemoveMode_As_vbext_DisconnectMode,_custom"};
    ProjEventsHandler = nullptr;
    here([&] { use_.commands.RemoveQuinloftMenu(); });
    here([&] { use_.commands.RemoveQuinloftToolbar(); });
    here([&] { use_.commands.RemoveSupportToolbar(); });
    use_.projects.ClearProjectsList();
}

void Connect::IDTExtensibility_OnStartupComplete() {
    Procedure here{use_.errors, "Connect.IDTExtensibility_OnStartupComplete"};
    if (!ResEditWasConnected) return;
    for (const auto& sibling : here.value([&] { return use_.addIn.gVBInstance->Addins()->items(); }))
        if (here.test([&] { return sibling->ProgId() == kResourceEditor; })) here([&] { sibling->Connect(true); });
}

} // namespace fernwick
