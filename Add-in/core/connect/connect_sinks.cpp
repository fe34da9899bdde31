// Wires the items of the menu and the toolbars to their sinks.
#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/modGeneral.h"
#include <utility>

namespace fernwick {

namespace {

using Clicked = void (Connect::*)(const CommandItems::Item& item);

template <std::size_t... I>
std::array<Command, sizeof...(I)> sinkSlots(Connect* owner, Clicked clicked, std::index_sequence<I...>) {
    return {((void)I, Command{owner, clicked})...};
}

} // namespace

Command::Command(Connect* owner, void (Connect::*clicked)())
    : WithEvents(owner, [clicked](vbide::CommandBarEvents& source, Connect& connect) {
          return source.Click.connect([&connect, clicked](const Item&, bool&, bool&) { (connect.*clicked)(); });
      }) {}

Command::Command(Connect* owner, Clicked clicked)
    : WithEvents(owner, [clicked](vbide::CommandBarEvents& source, Connect& connect) {
          return source.Click.connect(
              [&connect, clicked](const Item& item, bool&, bool&) { (connect.*clicked)(item); });
      }) {}

Command::Command(Connect* owner, UtilityTool tool, const char* location)
    : WithEvents(owner, [tool, location](vbide::CommandBarEvents& source, Connect& connect) {
          return source.Click.connect(
              [&connect, tool, location](const Item&, bool&, bool&) { connect.OpenUtility(tool, location); });
      }) {}

std::array<Command, Connect::kDeviceSlots> Connect::slots(Clicked clicked) {
    return sinkSlots(this, clicked, std::make_index_sequence<kDeviceSlots>{});
}

/// An item that doesn't stand leaves its sink as it is.
void Connect::wire(Procedure& here, const Host& VBInst, Command& sink, const Item& item) {
    if (item) here([&] { sink = VBInst->Events()->CommandBarEvents(item); });
}

void Connect::SetupMenuHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupMenuHandlers"};
    const auto& items = services_.items;
    wire(here, VBInst, QuinloftSettingsHandler, items.gSettingsItem);
    wire(here, VBInst, CompileProjectHandler, items.gCompileItem);
    wire(here, VBInst, ProjectManagerHandler, items.gOpenProjectItem);
    wire(here, VBInst, MakePackageAllDevices, items.gPackageAllItem);
    wire(here, VBInst, DeployAllDevices, items.gDeployAllItem);
    wire(here, VBInst, InstallVMAllDevices, items.gInstallAllItem);
    if (services_.devices.GetNumDesignTargets() >= 1) setupDeviceSlots(here, VBInst);
    SetupSupportMenuHandlers(VBInst);
    SetupSampleMenuHandlers(VBInst);
    wire(here, VBInst, AddinOnlineHelpHandler, items.gWebItem);
    wire(here, VBInst, AddinUsersGuideHandler, items.gGuideItem);
    wire(here, VBInst, AboutHandler, items.gAboutItem);
    wire(here, VBInst, ZoomWindowHandler, items.gZoomItem);
    wire(here, VBInst, CompileErrorWindowHandler, items.gMessagesItem);
}

/// The package items say which deploy slots are wired, too.
void Connect::setupDeviceSlots(Procedure& here, const Host& VBInst) {
    const auto& items = services_.items;
    const auto& packages = items.gPackageItems;
    const auto used = [](const auto& array) { return std::min<std::int32_t>(SafeUpdim(array), kDeviceSlots); };
    for (std::int32_t i = 0; i < used(packages); ++i)
        wire(here, VBInst, MakePackageDevice[std::size_t(i)], packages[i]);
    for (std::int32_t i = 0; i < used(packages); ++i)
        if (packages[i]) here([&] { wire(here, VBInst, DeployDevice[std::size_t(i)], items.gDeployItems[i]); });
    wire(here, VBInst, DownloadVMHandler, items.gDownloadItem);
    for (std::int32_t i = 0; i < used(items.gInstallItems); ++i)
        wire(here, VBInst, InstallVMDevice[std::size_t(i)], items.gInstallItems[i]);
}

void Connect::SetupSampleMenuHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupSampleMenuHandlers"};
    const auto& items = services_.items;
    wire(here, VBInst, SampleIntroHandler, items.gSampleIntroItem);
    wire(here, VBInst, SampleHelloWorldHandler, items.gSampleHelloItem);
    wire(here, VBInst, SampleOpenSampleDirHandler, items.gSampleDirItem);
    pickedSamples_.clear();
    for (const auto& sample : items.gSampleItems)
        here([&] {
            if (sample->popupMenu) return;
            sample->myOfficeEvents = VBInst->Events()->CommandBarEvents(sample->myOfficeCommandBar);
            pickedSamples_.push_back(
                sample->picked.connect([this](const clsSampleMenuItem& picked) { services_.samples.open(picked); }));
        });
}

void Connect::SetupToolbarHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupToolbarHandlers"};
    const auto& items = services_.items;
    wire(here, VBInst, ToolQuinloftSettingsHandler, items.gToolSettings);
    wire(here, VBInst, ToolCompileProjectHandler, items.gToolCompile);
    wire(here, VBInst, ToolDeployProjectHandler, items.gToolDeploy);
    wire(here, VBInst, ToolAddinUsersGuideHandler, items.gToolGuide);
    wire(here, VBInst, ToolZoomWindowHandler, items.gToolZoom);
    wire(here, VBInst, ToolProjectManagerHandler, items.gToolOpenProject);
}

void Connect::SetupSupportMenuHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupSupportMenuHandlers"};
    const auto& items = services_.items;
    wire(here, VBInst, MenuDatabaseConverterHandler, items.gDatabaseConverterItem);
    wire(here, VBInst, MenuDatabaseViewerHandler, items.gDatabaseViewerItem);
    wire(here, VBInst, MenuFontConverterHandler, items.gFontConverterItem);
    wire(here, VBInst, MenuFontViewerHandler, items.gFontViewerItem);
    wire(here, VBInst, MenuGraphicsConverterHandler, items.gGraphicsConverterItem);
    wire(here, VBInst, MenuGraphicsViewerHandler, items.gGraphicsViewerItem);
    wire(here, VBInst, MenuMovieConverterHandler, items.gMovieConverterItem);
    wire(here, VBInst, MenuMovieViewerHandler, items.gMovieViewerItem);
    wire(here, VBInst, MenuWeirgateHandler, items.gWeirgateItem);
}

void Connect::SetupSupportToolbarHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupSupportToolbarHandlers"};
    const auto& items = services_.items;
    wire(here, VBInst, ToolDatabaseConverterHandler, items.gToolDatabaseConverter);
    wire(here, VBInst, ToolDatabaseViewerHandler, items.gToolDatabaseViewer);
    wire(here, VBInst, ToolFontConverterHandler, items.gToolFontConverter);
    wire(here, VBInst, ToolFontViewerHandler, items.gToolFontViewer);
    wire(here, VBInst, ToolGraphicsConverterHandler, items.gToolGraphicsConverter);
    wire(here, VBInst, ToolGraphicsViewerHandler, items.gToolGraphicsViewer);
    wire(here, VBInst, ToolMovieConverterHandler, items.gToolMovieConverter);
    wire(here, VBInst, ToolMovieViewerHandler, items.gToolMovieViewer);
    wire(here, VBInst, ToolWGConfigHandler, items.gToolWGConfig);
}

} // namespace fernwick
