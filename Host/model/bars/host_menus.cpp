#include "Host/model/bars/host_menus.h"
#include "Host/model/bars/bars.h"

namespace host {
namespace {

constexpr int kBarAtTop = 1;

std::shared_ptr<Bar> addMenu(Bar& bar, int id, const char* caption) {
    const auto control = bar.add(office::msoControlPopup, id);
    control->Caption(caption);
    return control->popup();
}

void addCommand(Bar& menu, int id, const char* caption, std::function<void()> action) {
    const auto control = menu.add(office::msoControlButton, id);
    control->Caption(caption);
    control->action = std::move(action);
}

} // namespace

void addHostMenus(Bars& bars, const HostCommands& commands) {
    const auto menuBar = bars.addBar("Menu Bar", kBarAtTop);
    const auto file = addMenu(*menuBar, kFileMenuId, "&File");
    addCommand(*file, kNewProjectId, "&New Project", commands.newProject);
    addCommand(*file, kOpenProjectId, "&Open Project...", commands.openProject);
    addCommand(*file, kSaveProjectId, "Sa&ve Project", commands.saveProject);
    addCommand(*file, kRemoveProjectId, "&Remove Project", commands.removeProject);
    addMenu(*menuBar, kEditMenuId, "&Edit");
    addMenu(*menuBar, kViewMenuId, "&View");
    addMenu(*menuBar, kProjectMenuId, "&Project");
    addMenu(*menuBar, kAddInsMenuId, "&Add-Ins");
    addMenu(*menuBar, kHelpMenuId, "&Help");
}

} // namespace host
