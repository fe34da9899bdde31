#pragma once
// The add-in's entry object: what the host calls, and every event that the add-in listens to.
#include "Add-in/commands/command_items.h"
#include "Add-in/lifecycle/ProjectSetup.h"
#include <array>

namespace fernwick {

class Connect;

/// The sink of a menu item or button. It has no handler until its command is here.
class Command : public WithEvents<vbide::CommandBarEvents> {
public:
    explicit Command(Connect* owner) : WithEvents(owner) {}
    using WithEvents::operator=;
};

/// What the connection stands on.
struct ConnectServices {
    Platform& platform;
    ErrorReport& errors;
    modAddinPrefsManagement& prefs;
    AddIn& addIn;
    modReferencesManagement& references;
    modDeviceManagement& devices;
    CommandItems& items;
    modProjectHandler& projects;
    modCompileErrorManagement& messages;
    frmProjectRemoval& removal;
    ProjectSetup& setup;
    IdeCommands& commands;
};

class Connect : public vbide::IDTExtensibility {
public:
    using Host = basic::Ref<vbide::VBE>;
    /// Later device items of a family stand in the menu and do nothing.
    static constexpr int kDeviceSlots = 10;

    explicit Connect(const ConnectServices& services) : use_(services) {}

    void IDTExtensibility_OnConnection(const Host& VBInst, vbide::vbext_ConnectMode ConnectMode,
                                       const basic::Ref<vbide::AddIn>& AddInInst) override;
    void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode RemoveMode) override;
    void IDTExtensibility_OnStartupComplete() override;
    void IDTExtensibility_OnAddInsUpdate() override {}
    /// Assigns the sinks of the menu's items.
    void SetupMenuHandlers(const Host& VBInst);

    // Main menu
    Command QuinloftSettingsHandler{this};
    Command CompileProjectHandler{this};
    Command ProjectManagerHandler{this};
    Command MakePackageAllDevices{this};
    Command DeployAllDevices{this};
    Command InstallVMAllDevices{this};
    Command DownloadVMHandler{this};
    Command AddinOnlineHelpHandler{this};
    Command AddinUsersGuideHandler{this};
    Command AboutHandler{this};
    Command ZoomWindowHandler{this};
    Command CompileErrorWindowHandler{this};

    // Device slots: the clicked item's Tag tells the device
    std::array<Command, kDeviceSlots> MakePackageDevice{slots()};
    std::array<Command, kDeviceSlots> DeployDevice{slots()};
    std::array<Command, kDeviceSlots> InstallVMDevice{slots()};

    // Utilities menu
    Command MenuDatabaseConverterHandler{this};
    Command MenuDatabaseViewerHandler{this};
    Command MenuFontConverterHandler{this};
    Command MenuFontViewerHandler{this};
    Command MenuGraphicsConverterHandler{this};
    Command MenuGraphicsViewerHandler{this};
    Command MenuMovieConverterHandler{this};
    Command MenuMovieViewerHandler{this};
    Command MenuWeirgateHandler{this};

    // Samples menu
    Command SampleIntroHandler{this};
    Command SampleHelloWorldHandler{this};
    Command SampleOpenSampleDirHandler{this};

    // Main toolbar
    Command ToolQuinloftSettingsHandler{this};
    Command ToolCompileProjectHandler{this};
    Command ToolDeployProjectHandler{this};
    Command ToolAddinUsersGuideHandler{this};
    Command ToolZoomWindowHandler{this};
    Command ToolProjectManagerHandler{this};

    // Support toolbar
    Command ToolDatabaseConverterHandler{this};
    Command ToolDatabaseViewerHandler{this};
    Command ToolFontConverterHandler{this};
    Command ToolFontViewerHandler{this};
    Command ToolGraphicsConverterHandler{this};
    Command ToolGraphicsViewerHandler{this};
    Command ToolMovieConverterHandler{this};
    Command ToolMovieViewerHandler{this};
    Command ToolWGConfigHandler{this};

    // Kept in the interface; never assigned
    Command DeployPalmOSHandler{this};
    Command TestingDeployPocketPCHandler{this};
    Command InstallVMPalmOSHandler{this};

    // Projects
    WithEvents<vbide::VBProjectsEvents> ProjEventsHandler{this};
    // One project: that which was assigned last
    WithEvents<vbide::VBComponentsEvents> CompsEventsHandler{this};
    WithEvents<vbide::ReferencesEvents> RefEventsHandler{this};
    WithEvents<vbide::FileControlEvents> FileControlHandler{
        this, on(&vbide::FileControlEvents::RequestWriteFile, &Connect::FileControlHandler_RequestWriteFile)};
    // One form designer: that which was assigned last
    WithEvents<vbide::VBControlsEvents> ControlsEventsHandler{this};
    // Build
    WithEvents<vbide::VBBuildEvents> BuildEventsHandler{this};
    // All file loads
    WithEvents<vbide::FileControlEvents> GlobalFileControlHandler{
        this, on(&vbide::FileControlEvents::BeforeLoadFile, &Connect::GlobalFileControlHandler_BeforeLoadFile)};

    /// The resource editor was taken down at the start. Never cleared.
    bool ResEditWasConnected = false;
    /// Nanoseconds since 1970.
    std::int64_t LastControlEventTime = 0;
    /// Raised around the reload of a template project.
    bool TemplateReloadPending = false;
    bool ComponentAddGuard = false;

private:
    using Item = CommandItems::Item;

    std::array<Command, kDeviceSlots> slots();
    void buildInterface(Procedure& here, const Host& VBInst, const basic::Ref<vbide::AddIn>& AddInInst);
    void buildMenu(Procedure& here, const Host& VBInst, const basic::Ref<vbide::AddIn>& AddInInst);
    void meetSiblings(Procedure& here, const Host& VBInst);
    void failStart(Procedure& here, const char* step, const basic::Ref<vbide::AddIn>& AddInInst);
    void takeUpActiveProject(Procedure& here, const Host& VBInst);
    void watchProject(Procedure& here, const Host& VBInst, const basic::Ref<clsQLProject>& project);
    void disableInterface(Procedure& here);

    void SetupSampleMenuHandlers(const Host& VBInst);
    void SetupToolbarHandlers(const Host& VBInst);
    void SetupSupportMenuHandlers(const Host& VBInst);
    void SetupSupportToolbarHandlers(const Host& VBInst);
    void setupDeviceSlots(Procedure& here, const Host& VBInst);
    void wire(Procedure& here, const Host& VBInst, Command& sink, const Item& item);

    void GlobalFileControlHandler_BeforeLoadFile(basic::Ref<vbide::VBProject> VBProject,
                                                 const std::vector<std::string>& FileNames);
    void FileControlHandler_RequestWriteFile(basic::Ref<vbide::VBProject> VBProject, const std::string& FileName,
                                             bool& Cancel);

    ConnectServices use_;
};

} // namespace fernwick
