#include "Apps/workbench/window/window_commands.h"
#include "Apps/workbench/bars/command_icons.h"
#include "Apps/workbench/base/menu_builder.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/edit_commands.h"
#include "Apps/workbench/project/component_commands.h"
#include "Apps/workbench/project/project_properties.h"
#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/window/dock_menu.h"
#include "Apps/workbench/window/window_menu.h"
#include <QFileDialog>

namespace workbench {

namespace {

constexpr int kTopOfWindow = 1;

/// An add-in may put another component in its place.
void addComponent(host::Host& host, vbide::vbext_ComponentType type) {
    const auto active = host.ActiveVBProject();
    if (!active) return;
    active->VBComponents()->Add(type);
    const auto added = host.SelectedVBComponent();
    if (added && !added->HasOpenDesigner()) added->CodeModule()->CodePane()->Show();
}

void addFile(host::Host& host, MainWindow& window) {
    const auto active = host.ActiveVBProject();
    if (!active) return;
    const auto path = QFileDialog::getOpenFileName(&window, "Add File", QFileInfo(qt(active->FileName())).path(),
                                                   "Source files (*.frm *.bas *.cls *.ctl *.pag *.dob *.dsr)");
    if (!path.isEmpty()) active->VBComponents()->AddFile(text(path));
}

void addFileMenu(host::Host& host, MainWindow& window, const WindowDeeds& deeds) {
    controlOf(host, host::kNewProjectId)->Caption("&New Project...");
    controlOf(host, host::kNewProjectId)->action = deeds.newProject;
    controlOf(host, host::kSaveProjectId)->action = deeds.saveProject;
    controlOf(host, host::kRemoveProjectId)->action = deeds.removeProject;
    menuOf(host, host::kFileMenuId)
        .group()
        .add(kSaveFileId, "&Save File", [&host, &window] { saveFile(host, window); })
        .add(kSaveFileAsId, "Save File &As...", [&window] { saveFileAs(window); })
        .add(kSaveProjectAsId, "Save Pro&ject As...",
             [&host, &window] {
                 if (const auto active = host.ActiveVBProject()) saveUnderNewName(active, &window);
             })
        .group()
        .popup(kRecentMenuId, "Recent &Projects")
        .group()
        .add(kExitId, "E&xit", [&window] { window.close(); });
}

void addViewMenu(host::Host& host, MainWindow& window) {
    menuOf(host, host::kViewMenuId)
        .add(kViewCodeId, "&Code", [&window] { window.design().showCode(); })
        .add(kViewObjectId, "O&bject", [&window] { window.design().showObject(); });
    addToolBarSwitches(host);
    menuOf(host, host::kViewMenuId).add(kThemeId, "&Light or Dark", [&window] {
        window.setTheme(currentTheme() == Theme::Light ? Theme::Dark : Theme::Light);
    });
    addDockSwitches(host, window); // last, as more of them come
}

void addProjectMenu(host::Host& host, MainWindow& window) {
    menuOf(host, host::kProjectMenuId)
        .add(kAddFormId, "Add &Form", [&host] { addComponent(host, vbide::vbext_ct_VBForm); })
        .add(kAddModuleId, "Add &Module", [&host] { addComponent(host, vbide::vbext_ct_StdModule); })
        .add(kAddClassId, "Add &Class Module", [&host] { addComponent(host, vbide::vbext_ct_ClassModule); })
        .group()
        .add(kAddFileId, "&Add File...", [&host, &window] { addFile(host, window); })
        .add(kRemoveComponentId, "&Remove File", [&window] { removeComponent(window); })
        .group()
        .add(kStartUpProjectId, "Set as Start &Up", [&window] { setAsStartUp(window); })
        .add(kProjectPropertiesId, "&Properties...", [&host, &window] {
            if (const auto active = host.ActiveVBProject()) editProperties(active, &window);
        });
}

/// As Run > Start anywhere: what the user has written comes to run, here on its device.
void addRunMenu(host::Host& host, const WindowDeeds& deeds) {
    Menu(addTopMenu(host, kRunMenuId, "&Run", host::kAddInsMenuId)->popup())
        .add(kStartId, "&Start on Device", deeds.start);
}

/// Add-ins that are listed, each a switch that connects it.
void addAddInsMenu(host::Host& host) {
    const auto control = controlOf(host, host::kAddInsMenuId);
    const auto fill = [&host, popup = std::weak_ptr(control->popup())] {
        const auto menu = popup.lock();
        if (!menu) return;
        for (const auto& old : std::vector(menu->list()))
            if (old->Id() == kAddInId) old->Delete();
        for (const auto& addIn : host.Addins()->items()) {
            const auto entry = menu->add(office::msoControlButton, kAddInId);
            entry->Caption(addIn->Description());
            entry->checked(addIn->Connect());
            entry->action = [addIn] { addIn->Connect(!addIn->Connect()); };
        }
    };
    control->beforeShow = fill;
    fill(); // a popup without anything is not shown
}

void addHelpMenu(host::Host& host, const WindowDeeds& deeds) {
    menuOf(host, host::kHelpMenuId)
        .add(kHelpId, "&Contents", deeds.help)
        .group()
        .add(kAboutId, "&About Fernwick Workbench...", deeds.about);
}

void addStandardToolbar(host::Host& host) {
    const auto toolbar = host.bars().addBar(kStandardToolbar, kTopOfWindow);
    for (const int id :
         {int(host::kNewProjectId), int(host::kOpenProjectId), int(host::kSaveProjectId), int(kStartId)}) {
        const auto button = toolbar->add(office::msoControlButton, id);
        const auto command = controlOf(host, id);
        button->Caption(command->Caption());
        button->BeginGroup(id == kStartId);
        button->action = [command] { command->Execute(); };
    }
}

} // namespace

void addWindowCommands(host::Host& host, MainWindow& window, WindowDeeds deeds) {
    addFileMenu(host, window, deeds);
    addViewMenu(host, window);
    new EditCommands(host, window, [&window](int) { window.design().undo(); }); // all that forms have of it
    addProjectMenu(host, window);
    addRunMenu(host, deeds);
    addAddInsMenu(host);
    addWindowMenu(host, window.code());
    addHelpMenu(host, deeds);
    addStandardToolbar(host);
}

std::shared_ptr<host::Bar> recentMenu(host::Host& host) { return controlOf(host, kRecentMenuId)->popup(); }

} // namespace workbench
