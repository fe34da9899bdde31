#pragma once
// The add-in's entry object: the operations that the host calls, and handlers for all events.
#include "Add-in/commands/command_table.h"
#include "Add-in/commands/frmAbout.h"
#include "Add-in/commands/frmGettingStarted.h"
#include "Add-in/commands/modClipboardManagement.h"
#include "Add-in/commands/modHelpManagement.h"
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/commands/modToolbarManagement.h"
#include "Add-in/commands/modViewConvertManagement.h"
#include "Add-in/core/settings_dialog.h"
#include "Add-in/deploy/frmSendRuntimeToDevice.h"
#include "Add-in/deploy/frmSendToDevice.h"
#include "Add-in/lifecycle/frmDesignTargetConverterWarning.h"
#include "Add-in/lifecycle/frmProjectManager.h"
#include "Add-in/lifecycle/modRecentProjectManagment.h"
#include "Add-in/lifecycle/project_setup.h"
#include "Add-in/lifecycle/sample_opening.h"
#include "Add-in/project/frmSaveWarning.h"
#include "Add-in/zoom/modZoomManagement.h"
#include <array>

namespace fernwick {

class Command;
class Connect;

/// A sink and the item that it listens to. A table lists them in the order of assignment.
struct SinkOfItem {
    Command* sink;
    CommandItems::Item CommandItems::*item;
};
using SinkTable = std::vector<SinkOfItem>;

/// The sink of a menu item or button.
class Command : public WithEvents<vbide::CommandBarEvents> {
public:
    using Item = CommandItems::Item;

    /// For a sink that is never assigned.
    explicit Command(Connect* owner) : WithEvents(owner) {}
    Command(Connect* owner, SinkTable& table, Item CommandItems::*item, void (Connect::*clicked)());
    /// Starts a utility; a failure is reported under `location`.
    Command(Connect* owner, SinkTable& table, Item CommandItems::*item, UtilityTool tool, const char* location);
    /// For an item of one device: the handler takes the device from the clicked item.
    Command(Connect* owner, void (Connect::*clicked)(const Item& item));
    using WithEvents::operator=;
};

/// The dependencies of the connection.
struct ConnectServices {
    ErrorReport& errors;
    Interaction& user;
    EventLoop& loop;
    FileSystemObject& files;
    Shell& shell;
    const Clock& clock;
    const App& app;
    modAddinPrefsManagement& prefs;
    AddIn& addIn;
    modReferencesManagement& references;
    modDeviceManagement& devices;
    const DeviceServices& deviceServices;
    CommandItems& items;
    modClipboardManagement& clipboard;
    modMenuManagement& menu;
    modToolbarManagement& toolbars;
    frmGettingStarted& gettingStarted;
    modProjectHandler& projects;
    modSaveProject& save;
    frmSaveWarning& saveWarning;
    modCompileErrorManagement& messages;
    modRecentProjectManagment& recent;
    frmProjectManager& projectManager;
    frmProjectRemoval& removal;
    ProjectSetup& setup;
    frmDesignTargetConverter& converter;
    frmDesignTargetConverterWarning& converterWarning;
    SettingsDialog& settings;
    modZoomManagement& zoom;
    const modQLInstallInfo& install;
    frmCompile& compile;
    frmSendToDevice& sendToDevice;
    frmSendRuntimeToDevice& sendRuntime;
    modViewConvertManagement& tools;
    modHelpManagement& help;
    frmAbout& about;
    SampleOpening& samples;
};

class Connect : public vbide::IDTExtensibility {
    struct SinkTables {
        SinkTable menu, download, utilities, samples, help, toolbar, supportToolbar;
    } sinks_;

public:
    using Host = basic::Ref<vbide::VBE>;
    /// The number of sinks of each device popup. Items beyond this number have no sink and do nothing.
    static constexpr int kDeviceSlots = 10;

    explicit Connect(const ConnectServices& services);

    void IDTExtensibility_OnConnection(const Host& VBInst, vbide::vbext_ConnectMode ConnectMode,
                                       const basic::Ref<vbide::AddIn>& AddInInst) override;
    void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode RemoveMode) override;
    void IDTExtensibility_OnStartupComplete() override;
    void IDTExtensibility_OnAddInsUpdate() override {}
    /// Assigns the sinks of the menu's items.
    void SetupMenuHandlers(const Host& VBInst);
    /// Releases all sinks. No handler is called afterwards, even if the object lives on because one of them is running.
    void releaseSinks();

    // Each sink of the menu and the toolbars: its table, its item and its handler
    Command QuinloftSettingsHandler{this, sinks_.menu, &CommandItems::gSettingsItem,
                                    &Connect::QuinloftSettingsHandler_Click};
    Command CompileProjectHandler{this, sinks_.menu, &CommandItems::gCompileItem,
                                  &Connect::CompileProjectHandler_Click};
    Command ProjectManagerHandler{this, sinks_.menu, &CommandItems::gOpenProjectItem,
                                  &Connect::ProjectManagerHandler_Click};
    Command MakePackageAllDevices{this, sinks_.menu, &CommandItems::gPackageAllItem,
                                  &Connect::MakePackageAllDevices_Click};
    Command DeployAllDevices{this, sinks_.menu, &CommandItems::gDeployAllItem, &Connect::DeployAllDevices_Click};
    Command InstallVMAllDevices{this, sinks_.menu, &CommandItems::gInstallAllItem, &Connect::InstallVMAllDevices_Click};
    Command DownloadVMHandler{this, sinks_.download, &CommandItems::gDownloadItem, &Connect::DownloadVMHandler_Click};
    Command AddinOnlineHelpHandler{this, sinks_.help, &CommandItems::gWebItem, &Connect::AddinOnlineHelpHandler_Click};
    Command AddinUsersGuideHandler{this, sinks_.help, &CommandItems::gGuideItem,
                                   &Connect::AddinUsersGuideHandler_Click};
    Command AboutHandler{this, sinks_.help, &CommandItems::gAboutItem, &Connect::AboutHandler_Click};
    Command ZoomWindowHandler{this, sinks_.help, &CommandItems::gZoomItem, &Connect::ZoomWindowHandler_Click};
    Command CompileErrorWindowHandler{this, sinks_.help, &CommandItems::gMessagesItem,
                                      &Connect::CompileErrorWindowHandler_Click};

    // Items of devices, one for each family
    std::array<Command, kDeviceSlots> MakePackageDevice{slots(&Connect::MakePackageHandler)};
    std::array<Command, kDeviceSlots> DeployDevice{slots(&Connect::DeployDeviceHandler)};
    std::array<Command, kDeviceSlots> InstallVMDevice{slots(&Connect::InstallVMForDevice)};

    // Utilities. Errors of the database viewer are reported under the name of the database converter.
    Command MenuDatabaseConverterHandler{this, sinks_.utilities, &CommandItems::gDatabaseConverterItem,
                                         kDatabaseConverter, "Connect.MenuDatabaseConverterHandler_Click"};
    Command MenuDatabaseViewerHandler{this, sinks_.utilities, &CommandItems::gDatabaseViewerItem, kDatabaseViewer,
                                      "Connect.MenuDatabaseConverterHandler_Click"};
    Command MenuFontConverterHandler{this, sinks_.utilities, &CommandItems::gFontConverterItem, kFontConverter,
                                     "Connect.MenuFontConverterHandler_Click"};
    Command MenuFontViewerHandler{this, sinks_.utilities, &CommandItems::gFontViewerItem, kFontViewer,
                                  "Connect.MenuFontViewerHandler_Click"};
    Command MenuGraphicsConverterHandler{this, sinks_.utilities, &CommandItems::gGraphicsConverterItem,
                                         kGraphicsConverter, "Connect.MenuGraphicsConverterHandler_Click"};
    Command MenuGraphicsViewerHandler{this, sinks_.utilities, &CommandItems::gGraphicsViewerItem, kGraphicsViewer,
                                      "Connect.MenuGraphicsViewerHandler_Click"};
    Command MenuMovieConverterHandler{this, sinks_.utilities, &CommandItems::gMovieConverterItem, kMovieConverter,
                                      "Connect.MenuMovieConverterHandler_Click"};
    Command MenuMovieViewerHandler{this, sinks_.utilities, &CommandItems::gMovieViewerItem, kMovieViewer,
                                   "Connect.MenuMovieViewerHandler_Click"};
    Command MenuWeirgateHandler{this, sinks_.utilities, &CommandItems::gWeirgateItem, kWeirgateConfiguration,
                                "Connect.MenuWeirgateHandler_Click"};

    // Samples menu
    Command SampleIntroHandler{this, sinks_.samples, &CommandItems::gSampleIntroItem,
                               &Connect::SampleIntroHandler_Click};
    Command SampleHelloWorldHandler{this, sinks_.samples, &CommandItems::gSampleHelloItem,
                                    &Connect::SampleHelloWorldHandler_Click};
    Command SampleOpenSampleDirHandler{this, sinks_.samples, &CommandItems::gSampleDirItem,
                                       &Connect::SampleOpenSampleDirHandler_Click};

    // Main toolbar
    Command ToolQuinloftSettingsHandler{this, sinks_.toolbar, &CommandItems::gToolSettings,
                                        &Connect::QuinloftSettingsHandler_Click};
    Command ToolCompileProjectHandler{this, sinks_.toolbar, &CommandItems::gToolCompile,
                                      &Connect::CompileProjectHandler_Click};
    Command ToolDeployProjectHandler{this, sinks_.toolbar, &CommandItems::gToolDeploy,
                                     &Connect::ToolDeployProjectHandler_Click};
    Command ToolAddinUsersGuideHandler{this, sinks_.toolbar, &CommandItems::gToolGuide,
                                       &Connect::AddinUsersGuideHandler_Click};
    Command ToolZoomWindowHandler{this, sinks_.toolbar, &CommandItems::gToolZoom, &Connect::ZoomWindowHandler_Click};
    Command ToolProjectManagerHandler{this, sinks_.toolbar, &CommandItems::gToolOpenProject,
                                      &Connect::ProjectManagerHandler_Click};

    // Support toolbar
    Command ToolDatabaseConverterHandler{this, sinks_.supportToolbar, &CommandItems::gToolDatabaseConverter,
                                         kDatabaseConverter, "Connect.ToolDatabaseConverterHandler_Click"};
    Command ToolDatabaseViewerHandler{this, sinks_.supportToolbar, &CommandItems::gToolDatabaseViewer, kDatabaseViewer,
                                      "Connect.MenuDatabaseConverterHandler_Click"};
    Command ToolFontConverterHandler{this, sinks_.supportToolbar, &CommandItems::gToolFontConverter, kFontConverter,
                                     "Connect.ToolFontConverterHandler_Click"};
    Command ToolFontViewerHandler{this, sinks_.supportToolbar, &CommandItems::gToolFontViewer, kFontViewer,
                                  "Connect.ToolFontViewerHandler_Click"};
    Command ToolGraphicsConverterHandler{this, sinks_.supportToolbar, &CommandItems::gToolGraphicsConverter,
                                         kGraphicsConverter, "Connect.ToolGraphicsConverterHandler_Click"};
    Command ToolGraphicsViewerHandler{this, sinks_.supportToolbar, &CommandItems::gToolGraphicsViewer, kGraphicsViewer,
                                      "Connect.ToolGraphicsViewerHandler_Click"};
    Command ToolMovieConverterHandler{this, sinks_.supportToolbar, &CommandItems::gToolMovieConverter, kMovieConverter,
                                      "Connect.ToolMovieConverterHandler_Click"};
    Command ToolMovieViewerHandler{this, sinks_.supportToolbar, &CommandItems::gToolMovieViewer, kMovieViewer,
                                   "Connect.ToolMovieViewerHandler_Click"};
    Command ToolWGConfigHandler{this, sinks_.supportToolbar, &CommandItems::gToolWGConfig, kWeirgateConfiguration,
                                "Connect.ToolWGConfigHandler_Click"};

    // Kept in the interface; never assigned
    Command DeployPalmOSHandler{this};
    Command TestingDeployPocketPCHandler{this};
    Command InstallVMPalmOSHandler{this};

    // Projects
    WithEvents<vbide::VBProjectsEvents> ProjEventsHandler{
        this, on(&vbide::VBProjectsEvents::ItemAdded, &Connect::ProjEventsHandler_ItemAdded),
        on(&vbide::VBProjectsEvents::ItemRemoved, &Connect::ProjEventsHandler_ItemRemoved),
        on(&vbide::VBProjectsEvents::ItemRenamed, &Connect::ProjEventsHandler_ItemRenamed),
        on(&vbide::VBProjectsEvents::ItemActivated, &Connect::ProjEventsHandler_ItemActivated)};
    // One project: the last one assigned
    WithEvents<vbide::VBComponentsEvents> CompsEventsHandler{
        this, on(&vbide::VBComponentsEvents::ItemAdded, &Connect::CompsEventsHandler_ItemAdded),
        on(&vbide::VBComponentsEvents::ItemRenamed, &Connect::CompsEventsHandler_ItemRenamed),
        on(&vbide::VBComponentsEvents::ItemSelected, &Connect::CompsEventsHandler_ItemSelected),
        on(&vbide::VBComponentsEvents::ItemActivated, &Connect::CompsEventsHandler_ItemActivated)};
    WithEvents<vbide::ReferencesEvents> RefEventsHandler{
        this, on(&vbide::ReferencesEvents::ItemAdded, &Connect::RefEventsHandler_ItemAdded)};
    WithEvents<vbide::FileControlEvents> FileControlHandler{
        this, on(&vbide::FileControlEvents::RequestWriteFile, &Connect::FileControlHandler_RequestWriteFile)};
    // One form designer: the last one assigned
    WithEvents<vbide::VBControlsEvents> ControlsEventsHandler{
        this, on(&vbide::VBControlsEvents::ItemAdded, &Connect::ControlsEventsHandler_ItemAdded)};
    // Build
    WithEvents<vbide::VBBuildEvents> BuildEventsHandler{
        this, on(&vbide::VBBuildEvents::EnterDesignMode, &Connect::BuildEventsHandler_EnterDesignMode),
        on(&vbide::VBBuildEvents::EnterRunMode, &Connect::BuildEventsHandler_EnterRunMode)};
    // All file loads
    WithEvents<vbide::FileControlEvents> GlobalFileControlHandler{
        this, on(&vbide::FileControlEvents::BeforeLoadFile, &Connect::GlobalFileControlHandler_BeforeLoadFile)};

    /// Whether the resource editor was disconnected at the start. Never reset.
    bool ResEditWasConnected = false;
    /// Time of the connection, later of the last control added to an unsaved project, in nanoseconds since 1970.
    std::int64_t LastControlEventTime = 0;
    /// A template project is queued for reloading and has not been added yet.
    bool TemplateReloadPending = false;
    /// A component is being replaced by its template, which must not be replaced itself.
    bool ComponentAddGuard = false;
    /// The form selected last.
    basic::Ref<vbide::VBComponent> SelectedForm;

private:
    using Item = CommandItems::Item;
    using Project = basic::Ref<vbide::VBProject>;
    using QLProject = basic::Ref<clsQLProject>;
    using Component = basic::Ref<vbide::VBComponent>;
    using Control = basic::Ref<vbide::VBControl>;

    std::array<Command, kDeviceSlots> slots(void (Connect::*clicked)(const Item& item));
    void buildInterface(Procedure& here, const Host& VBInst, const basic::Ref<vbide::AddIn>& AddInInst);
    void buildMenu(Procedure& here, const Host& VBInst, const basic::Ref<vbide::AddIn>& AddInInst);
    void connectSiblings(Procedure& here, const Host& VBInst);
    void failStart(Procedure& here, const char* step, const basic::Ref<vbide::AddIn>& AddInInst);
    void adoptActiveProject(Procedure& here, const Host& VBInst);
    void watchSelectedForm(Procedure& here, const Host& VBInst);
    void watchProject(Procedure& here, const Project& project);
    void watchDesigner(const Component& form);
    void disableInterface(Procedure& here);

    void SetupSampleMenuHandlers(const Host& VBInst);
    void SetupToolbarHandlers(const Host& VBInst);
    void SetupSupportMenuHandlers(const Host& VBInst);
    void SetupSupportToolbarHandlers(const Host& VBInst);
    void setupDeviceSlots(Procedure& here, const Host& VBInst);
    void wire(Procedure& here, const Host& VBInst, Command& sink, const Item& item);
    void wireAll(Procedure& here, const Host& VBInst, const SinkTable& table);

    // Commands on the active project
    void CompileProjectHandler_Click();
    void ToolDeployProjectHandler_Click();
    void CompileErrorWindowHandler_Click();
    void QuinloftSettingsHandler_Click();
    basic::Ref<clsQLProject> activeProject();
    // Commands for one device, taken from the item. Errors go to the host.
    void DeployDeviceHandler(const Item& item);
    void MakePackageHandler(const Item& item);
    void InstallVMForDevice(const Item& item);
    // Commands for My Devices. Errors go to the host.
    void DeployAllDevices_Click();
    void MakePackageAllDevices_Click();
    void InstallVMAllDevices_Click();
    bool hasMyDevices();
    void toMyDevices(const std::function<void(const std::string& device)>& act);
    // Other commands
    void ProjectManagerHandler_Click() { services_.setup.StartProjectManager(); }
    void ZoomWindowHandler_Click() { services_.zoom.ShowZoomWin(); }
    void DownloadVMHandler_Click();
    void AddinUsersGuideHandler_Click();
    void AddinOnlineHelpHandler_Click();
    void AboutHandler_Click();
    void OpenUtility(UtilityTool tool, const char* location);
    void SampleIntroHandler_Click();
    void SampleHelloWorldHandler_Click();
    void SampleOpenSampleDirHandler_Click();
    void box(const char* text, int icon);

    // Projects are added, removed, renamed and activated
    void ProjEventsHandler_ItemAdded(Project VBProject);
    void ProjEventsHandler_ItemRemoved(Project VBProject);
    void ProjEventsHandler_ItemRenamed(Project VBProject, const std::string& OldName);
    void ProjEventsHandler_ItemActivated(Project VBProject);
    void watchAddedProject(Procedure& here);
    void fitTemplate(Procedure& here, const QLProject& project);
    void adoptReloaded(Procedure& here, const QLProject& project);
    void addFirstForm(Procedure& here, const QLProject& project);
    void refuseDevice(Procedure& here, const QLProject& project, const std::string& device);
    void closeAdded(Procedure& here, const Project& project);
    void openCopy(const std::string& path);
    void keepState(Procedure& here, const QLProject& project);
    void keepDesktopState(Procedure& here, const QLProject& project);

    // Components, references, controls and the build
    void CompsEventsHandler_ItemAdded(Component VBComponent);
    void CompsEventsHandler_ItemRenamed() {}
    void CompsEventsHandler_ItemSelected(Component VBComponent);
    void CompsEventsHandler_ItemActivated(Component VBComponent);
    using NameTest = bool (*)(const vbide::VBComponent& component);
    using TemplateOf = std::string (clsQLProject::*)() const;
    bool replaceByTemplate(Procedure& here, const QLProject& project, const Component& VBComponent, NameTest isDefault,
                           TemplateOf path);
    void fitForm(Procedure& here, const QLProject& project, const Component& VBComponent);
    void refuseType(Procedure& here, const QLProject& project, const Component& VBComponent);
    QLProject activeFernwickProject(Procedure& here);
    bool isFormOfOurs(Procedure& here, const Component& VBComponent);
    void RefEventsHandler_ItemAdded();
    void ControlsEventsHandler_ItemAdded(Control VBControl);
    void setControlDefaults(Procedure& here, const QLProject& project, const Control& VBControl);
    void saveForControls(Procedure& here, const Project& vbProject);
    void BuildEventsHandler_EnterDesignMode();
    void BuildEventsHandler_EnterRunMode();
    bool isCurrentOurs() const;

    void GlobalFileControlHandler_BeforeLoadFile(basic::Ref<vbide::VBProject> VBProject,
                                                 const std::vector<std::string>& FileNames);
    void FileControlHandler_RequestWriteFile(basic::Ref<vbide::VBProject> VBProject, const std::string& FileName,
                                             bool& Cancel);

    friend class Command;
    ConnectServices services_;
    /// The designer whose events ControlsEventsHandler receives.
    basic::Ref<vbide::VBForm> watchedDesigner_;
    Subscription replacementsEnded_;
    /// One for each sample of the menu.
    std::vector<Subscription> pickedSamples_;
};

} // namespace fernwick
