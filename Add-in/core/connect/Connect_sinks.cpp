// Assigns the sinks of the menu's and the toolbars' items.
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

Command::Command(Connect* owner, SinkTable& table, Item CommandItems::*item, void (Connect::*clicked)())
    : WithEvents(owner, [clicked](vbide::CommandBarEvents& source, Connect& connect) {
          return source.Click.connect([&connect, clicked](const Item&, bool&, bool&) { (connect.*clicked)(); });
      }) {
    table.push_back({this, item});
}

Command::Command(Connect* owner, SinkTable& table, Item CommandItems::*item, UtilityTool tool, const char* location)
    : WithEvents(owner, [tool, location](vbide::CommandBarEvents& source, Connect& connect) {
          return source.Click.connect(
              [&connect, tool, location](const Item&, bool&, bool&) { connect.OpenUtility(tool, location); });
      }) {
    table.push_back({this, item});
}

Command::Command(Connect* owner, Clicked clicked)
    : WithEvents(owner, [clicked](vbide::CommandBarEvents& source, Connect& connect) {
          return source.Click.connect(
              [&connect, clicked](const Item& item, bool&, bool&) { (connect.*clicked)(item); });
      }) {}

std::array<Command, Connect::kDeviceSlots> Connect::slots(Clicked clicked) {
    return sinkSlots(this, clicked, std::make_index_sequence<kDeviceSlots>{});
}

/// A null item leaves the sink unchanged.
void Connect::wire(Procedure& here, const Host& VBInst, Command& sink, const Item& item) {
    if (item) here([&] { sink = VBInst->Events()->CommandBarEvents(item); });
}

void Connect::wireAll(Procedure& here, const Host& VBInst, const SinkTable& table) {
    for (const auto& [sink, item] : table) wire(here, VBInst, *sink, services_.items.*item);
}

void Connect::SetupMenuHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupMenuHandlers"};
    wireAll(here, VBInst, sinks_.menu);
    if (services_.devices.GetNumDesignTargets() >= 1) setupDeviceSlots(here, VBInst);
    SetupSupportMenuHandlers(VBInst);
    SetupSampleMenuHandlers(VBInst);
    wireAll(here, VBInst, sinks_.help);
}

/// The package items also decide which deploy slots are wired.
void Connect::setupDeviceSlots(Procedure& here, const Host& VBInst) {
    const auto& items = services_.items;
    const auto& packages = items.gPackageItems;
    const auto used = [](const auto& array) { return std::min<std::int32_t>(SafeUpdim(array), kDeviceSlots); };
    for (std::int32_t i = 0; i < used(packages); ++i)
        wire(here, VBInst, MakePackageDevice[std::size_t(i)], packages[i]);
    for (std::int32_t i = 0; i < used(packages); ++i)
        if (packages[i]) here([&] { wire(here, VBInst, DeployDevice[std::size_t(i)], items.gDeployItems[i]); });
    wireAll(here, VBInst, sinks_.download);
    for (std::int32_t i = 0; i < used(items.gInstallItems); ++i)
        wire(here, VBInst, InstallVMDevice[std::size_t(i)], items.gInstallItems[i]);
}

void Connect::releaseSinks() {
    for (const auto* table : {&sinks_.menu, &sinks_.download, &sinks_.utilities, &sinks_.samples, &sinks_.help,
                              &sinks_.toolbar, &sinks_.supportToolbar})
        for (const auto& row : *table) *row.sink = nullptr;
    for (auto* family : {&MakePackageDevice, &DeployDevice, &InstallVMDevice})
        for (auto& sink : *family) sink = nullptr;
    pickedSamples_.clear();
    ProjEventsHandler = nullptr;
    CompsEventsHandler = nullptr;
    RefEventsHandler = nullptr;
    FileControlHandler = nullptr;
    ControlsEventsHandler = nullptr;
    watchedDesigner_ = nullptr;
    BuildEventsHandler = nullptr;
    GlobalFileControlHandler = nullptr;
}

void Connect::SetupSampleMenuHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupSampleMenuHandlers"};
    wireAll(here, VBInst, sinks_.samples);
    pickedSamples_.clear();
    for (const auto& sample : services_.items.gSampleItems)
        here([&] {
            if (sample->popupMenu) return;
            sample->myOfficeEvents = VBInst->Events()->CommandBarEvents(sample->myOfficeCommandBar);
            pickedSamples_.push_back(
                sample->picked.connect([this](const clsSampleMenuItem& picked) { services_.samples.open(picked); }));
        });
}

void Connect::SetupToolbarHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupToolbarHandlers"};
    wireAll(here, VBInst, sinks_.toolbar);
}

void Connect::SetupSupportMenuHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupSupportMenuHandlers"};
    wireAll(here, VBInst, sinks_.utilities);
}

void Connect::SetupSupportToolbarHandlers(const Host& VBInst) {
    Procedure here{services_.errors, "Connect.SetupSupportToolbarHandlers"};
    wireAll(here, VBInst, sinks_.supportToolbar);
}

} // namespace fernwick
