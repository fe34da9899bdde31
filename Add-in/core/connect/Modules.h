#pragma once
// The composition root of the add-in.
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/build/frmCompile.h"
#include "Add-in/build/frmCompileWarning.h"
#include "Add-in/build/frmValidate.h"
#include "Add-in/build/messages/udocCompileMsgs.h"
#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/modAddInErrorManagement.h"
#include "Add-in/deploy/frmSendRuntimeToDevice.h"
#include "Add-in/deploy/frmSendToDevice.h"
#include "Add-in/lifecycle/frmDesignTargetConverterWarning.h"
#include "Add-in/project/frmSaveWarning.h"
#include "Add-in/settings/frmQuinloftSettings.h"
#include "Add-in/zoom/udocZoomWindow.h"

namespace fernwick {

/// Objects that replace the add-in's own; null keeps the add-in's.
struct ModuleOverrides {
    ErrorReport* errors = nullptr;
    SettingsDialog* settings = nullptr;
};

/// One instance of each module and form, in the order of the rooms: a member may use only those above it, so the
/// compiler rejects a cycle. Two add-ins may live in one process.
struct Modules {
    /// `platform` and `overrides` must outlive the add-in.
    explicit Modules(Platform& platform, const ModuleOverrides& overrides = {});
    Modules(const Modules&) = delete;
    ~Modules();

    Platform& platform;
    // core
    modAddInErrorManagement errorBoxes{platform.interaction, platform.app};
    ErrorReport& errors;
    modRegistry2 registry{platform.registry};
    modQLInstallInfo install{registry, platform.files};
    modAddinPrefsManagement prefs{registry, errors};
    AddIn addIn{registry, errors, platform.environment};
    modReferencesManagement references{registry, platform.classes, errors};
    // devices
    modDeviceManagement devices{platform.classes, errors};
    DeviceServices deviceServices{errors, platform.interaction, platform.classes, registry, prefs, references, devices};
    // commands
    CommandItems items;
    modClipboardManagement clipboard{platform.clipboard, errors};
    modImageManagement images{platform};
    modMenuManagement menu{{platform.interaction, errors, addIn, registry, devices, images, items}};
    modToolbarManagement toolbars{{errors, addIn, prefs, images, items}};
    modSamplesManagement samplesList{registry};
    modViewConvertManagement tools{platform.shell, install, errors};
    modHelpManagement help{platform, install, errors};
    frmAbout about{platform, errors};
    frmGettingStarted gettingStarted{platform, install, prefs, errors};
    // project
    modProjectTemplates templates{addIn, install, platform.files, platform.interaction, errors};
    ProjectServices projectServices{errors, platform, install, addIn, devices, templates};
    modProjectHandler projects{projectServices};
    modSaveProject save{projectServices, projects};
    frmSaveProjectFiles saveFiles{platform.interaction, addIn};
    frmSaveWarning saveWarning{platform.interaction, addIn};
    // build
    modCompileErrorManagement messages{addIn, errors, platform};
    modProcessControl processes{errors, platform};
    modDependencyManagement dependencies{{platform, errors, install, messages, menu}};
    frmCompileWarning compileWarning{platform.interaction, prefs, errors};
    frmCompile compile{
        {platform, errors, registry, install, projects, messages, dependencies, processes, saveFiles, menu}};
    frmValidate validate{{platform, errors, registry, install, projectServices, deviceServices, messages, compile}};
    // settings
    frmQuinloftSettings settingsDialog{
        {platform, errors, addIn, prefs, install, devices, menu, help, projects, dependencies}};
    SettingsDialog& settings;
    // deploy
    PipeServices pipeServices{platform, errors, install, devices};
    frmSendToDevice sendToDevice{
        pipeServices, {addIn, prefs, projects, messages, dependencies, compile, compileWarning, validate, settings}};
    frmSendRuntimeToDevice sendRuntime{pipeServices};
    // zoom
    modZoomManagement zoom{addIn, errors, prefs, platform};
    modZoomWindowSubclassing zoomSubclassing{zoom, errors, platform};
    // lifecycle
    modRecentProjectManagment recent{registry, platform.files, errors};
    frmProjectManager projectManager{
        {errors, platform.interaction, platform.loop, platform.files, addIn, prefs, samplesList, projects, recent}};
    frmProjectRemoval removal{platform.interaction, platform.loop, addIn, projects, items, menu, errors};
    frmDesignTargetNormal chooseTarget{deviceServices};
    ProjectSetup setup{{errors, platform.interaction, platform.loop, addIn, devices, deviceServices, projects, save,
                        messages, chooseTarget, projectManager, removal, items, menu, toolbars, zoom}};
    ConversionServices conversionServices{
        errors, platform.interaction, platform.files, deviceServices, projectServices, projects, setup};
    frmDesignTargetConverter converter{conversionServices, addIn};
    frmDesignTargetConverterWarning converterWarning{conversionServices, addIn, converter};
    SampleOpening samples{
        {errors, platform.interaction, platform.loop, platform.files, platform.app, addIn, save, items}};
    // on top
    Connect connect{{errors,
                     platform.interaction,
                     platform.loop,
                     platform.files,
                     platform.shell,
                     platform.clock,
                     platform.app,
                     prefs,
                     addIn,
                     references,
                     devices,
                     deviceServices,
                     items,
                     clipboard,
                     menu,
                     toolbars,
                     gettingStarted,
                     projects,
                     save,
                     saveWarning,
                     messages,
                     recent,
                     projectManager,
                     removal,
                     setup,
                     converter,
                     converterWarning,
                     settings,
                     zoom,
                     install,
                     compile,
                     sendToDevice,
                     sendRuntime,
                     tools,
                     help,
                     about,
                     samples}};

    /// The document of the messages window; Nothing until the host has created it.
    basic::Ref<udocCompileMsgs> compileMsgs() const;
    /// Ends the connection: no event, timer or window of the host reaches the add-in any more.
    void release();

private:
    basic::Ref<Object> newCompileMsgs();
    basic::Ref<Object> newZoomWindow();
    void endZoom();

    /// Documents of the host's tool windows, which own them.
    std::vector<std::weak_ptr<udocCompileMsgs>> documents_;
    std::vector<std::weak_ptr<udocZoomWindow>> zoomDocuments_;
    std::shared_ptr<void> compileMsgsClass_, zoomWindowClass_;
};

} // namespace fernwick
