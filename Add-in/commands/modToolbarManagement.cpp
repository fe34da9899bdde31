#include "Add-in/commands/modToolbarManagement.h"
#include "Add-in/devices/modDeviceManagement.h"

namespace fernwick {

bool modToolbarManagement::SetupQuinloftToolbar() try {
    const auto bar = items_.gMainToolbar = AddToolbar(LoadResString(kToolbarString));
    items_.gToolCompile = button(bar, kCompileTip, kCompileFace);
    items_.gToolDeploy = button(bar, kDeployTip, kDeployFace);
    items_.gToolSettings = button(bar, kSettingsTip, kSettingsFace);
    items_.gToolOpenProject = button(bar, kOpenProjectTip, kOpenProjectFace, true);
    items_.gToolZoom = button(bar, kZoomTip, kZoomFace, true);
    items_.gToolGuide = button(bar, kUsersGuideTip, kUsersGuideFace, true);
    showDisabled(bar);
    return true;
} catch (const basic::RuntimeError& error) {
    services_.errors.Error_ShowAddInError("modToolbarManagement.SetupQuinloftToolbar", error);
    return false;
}

bool modToolbarManagement::SetupSupportToolbar() try {
    const auto name = modDeviceManagement::StripAcceleratorInfo(LoadResString(kUtilitiesString));
    const auto bar = items_.gSupportToolbar = AddToolbar(name);
    items_.gToolDatabaseConverter = button(bar, kDatabaseConverterString, kDatabaseConverterFace);
    items_.gToolDatabaseViewer = button(bar, kDatabaseViewerString, kDatabaseViewerFace);
    items_.gToolFontConverter = button(bar, kFontConverterString, kFontConverterFace);
    items_.gToolFontViewer = button(bar, kFontViewerString, kFontViewerFace);
    items_.gToolGraphicsConverter = button(bar, kGraphicsConverterString, kGraphicsConverterFace);
    items_.gToolGraphicsViewer = button(bar, kGraphicsViewerString, kGraphicsViewerFace);
    items_.gToolMovieConverter = button(bar, kMovieConverterString, kMovieConverterFace);
    items_.gToolMovieViewer = button(bar, kMovieViewerString, kMovieViewerFace);
    items_.gToolWGConfig = button(bar, kWeirgateString, kWeirgateFace);
    showDisabled(bar);
    return true;
} catch (const basic::RuntimeError& error) {
    services_.errors.Error_ShowAddInError("modToolbarManagement.SetupSupportToolbar", error);
    return false;
}

modToolbarManagement::Bar modToolbarManagement::AddToolbar(const std::string& name) {
    const auto bars = services_.addIn.gVBInstance->CommandBars();
    basic::Suppressed quietly;
    quietly([&] { bars->Item(name)->Delete(); });
    return bars->Add(name, office::msoBarTop, false);
}

modToolbarManagement::Item modToolbarManagement::AddControlButtonToolbar(const Bar& bar) {
    return bar->Controls()->Add(office::msoControlButton);
}

modToolbarManagement::Item modToolbarManagement::button(const Bar& bar, StringId tip, Face face, bool group) {
    const auto item = AddControlButtonToolbar(bar);
    item->ToolTipText(LoadResString(tip));
    services_.images.PlaceImageOnButton(item, face);
    if (group) item->BeginGroup(true);
    return item;
}

void modToolbarManagement::showDisabled(const Bar& bar) {
    bar->Visible(true);
    bar->Enabled(false);
    services_.prefs.ReadToolbarState(bar);
}

void modToolbarManagement::enable(const Bar& bar, const char* procedure) {
    Procedure here{services_.errors, std::string("modToolbarManagement.") + procedure};
    if (bar) here([&] { bar->Enabled(true); });
}

void modToolbarManagement::disable(const Bar& bar) {
    basic::Suppressed quietly;
    if (bar) quietly([&] { bar->Enabled(false); });
}

void modToolbarManagement::RemoveQuinloftToolbar() {
    basic::Suppressed quietly;
    for (const auto* item : {&items_.gToolCompile, &items_.gToolDeploy, &items_.gToolSettings, &items_.gToolOpenProject,
                             &items_.gToolZoom, &items_.gToolGuide})
        if (*item) quietly([&] { (*item)->Delete(); });
    if (items_.gMainToolbar) quietly([&] { items_.gMainToolbar->Delete(); });
}

void modToolbarManagement::RemoveSupportToolbar() {
    basic::Suppressed quietly;
    for (const auto* item : {&items_.gToolDatabaseConverter, &items_.gToolDatabaseViewer, &items_.gToolFontConverter,
                             &items_.gToolFontViewer, &items_.gToolGraphicsConverter, &items_.gToolGraphicsViewer,
                             &items_.gToolMovieConverter, &items_.gToolMovieViewer, &items_.gToolWGConfig})
        if (*item) quietly([&] { (*item)->Delete(); });
    if (items_.gSupportToolbar) quietly([&] { items_.gSupportToolbar->Delete(); });
}

void modToolbarManagement::SaveAllToolbarState() {
    for (const auto& bar : {items_.gMainToolbar, items_.gSupportToolbar})
        if (bar) services_.prefs.SaveToolbarState(bar);
}

void modToolbarManagement::RestoreAllToolbarState() {
    for (const auto& bar : {items_.gMainToolbar, items_.gSupportToolbar})
        if (bar) services_.prefs.ReadToolbarState(bar);
}

} // namespace fernwick
