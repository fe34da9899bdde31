#include "Apps/workbench/window_commands.h"
#include "Apps/workbench/command_icons.h"
#include "Apps/workbench/edit_commands.h"
#include "Apps/workbench/text.h"
#include <QDockWidget>
#include <QFileDialog>

namespace workbench {

namespace {

constexpr int kTopOfWindow = 1;

std::shared_ptr<host::BarControl> controlOf(host::Host& host, int id) {
    return basic::cast<host::BarControl>(host.CommandBars()->FindControl(id)).shared();
}

/// Adds commands to one popup.
class Menu {
public:
    explicit Menu(std::shared_ptr<host::Bar> bar) : bar_(std::move(bar)) {}

    Menu& add(int id, const char* caption, std::function<void()> action) {
        const auto control = bar_->add(office::msoControlButton, id);
        control->Caption(caption);
        control->BeginGroup(std::exchange(group_, false));
        control->action = std::move(action);
        return *this;
    }
    Menu& popup(int id, const char* caption) {
        const auto control = bar_->add(office::msoControlPopup, id);
        control->Caption(caption);
        control->BeginGroup(std::exchange(group_, false));
        return *this;
    }
    /// The next one begins a group.
    Menu& group() {
        group_ = true;
        return *this;
    }

private:
    std::shared_ptr<host::Bar> bar_;
    bool group_ = false;
};

Menu menuOf(host::Host& host, int id) { return Menu(controlOf(host, id)->popup()); }

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

void addProjectMenu(host::Host& host, MainWindow& window) {
    menuOf(host, host::kProjectMenuId)
        .add(kAddFormId, "Add &Form", [&host] { addComponent(host, vbide::vbext_ct_VBForm); })
        .add(kAddModuleId, "Add &Module", [&host] { addComponent(host, vbide::vbext_ct_StdModule); })
        .add(kAddClassId, "Add &Class Module", [&host] { addComponent(host, vbide::vbext_ct_ClassModule); })
        .group()
        .add(kAddFileId, "&Add File...", [&host, &window] { addFile(host, window); });
}

void addRunMenu(host::Host& host, const WindowDeeds& deeds) {
    const auto menuBar = basic::cast<host::Bar>(host.CommandBars()->ActiveMenuBar()).shared();
    const auto before = controlOf(host, host::kAddInsMenuId)->Index();
    const auto run = menuBar->add(office::msoControlPopup, kRunMenuId, before);
    run->Caption("&Run");
    Menu(run->popup()).add(kCompileId, "&Compile Project", deeds.compile);
}

void addStandardToolbar(host::Host& host) {
    const auto toolbar = host.bars().addBar("Standard", kTopOfWindow);
    for (const int id :
         {int(host::kNewProjectId), int(host::kOpenProjectId), int(host::kSaveProjectId), int(kCompileId)}) {
        const auto button = toolbar->add(office::msoControlButton, id);
        const auto command = controlOf(host, id);
        button->Caption(command->Caption());
        button->BeginGroup(id == kCompileId);
        button->action = [command] { command->Execute(); };
    }
}

} // namespace

void addWindowCommands(host::Host& host, MainWindow& window, WindowDeeds deeds) {
    controlOf(host, host::kSaveProjectId)->action = deeds.saveProject;
    controlOf(host, host::kRemoveProjectId)->action = deeds.removeProject;
    menuOf(host, host::kFileMenuId)
        .group()
        .popup(kRecentMenuId, "Recent &Projects")
        .group()
        .add(kExitId, "E&xit", [&window] { window.close(); });
    new EditCommands(host, window);
    menuOf(host, host::kViewMenuId)
        .add(kViewCodeId, "&Code", [&window] { window.design().showCode(); })
        .add(kViewObjectId, "O&bject", [&window] { window.design().showObject(); })
        .group()
        .add(kPropertiesId, "Properties &Window",
             [&window] {
                 window.propertiesDock().show();
                 window.design().properties().setFocus();
             })
        .add(kExplorerId, "&Project Explorer",
             [&window] {
                 window.explorerDock().show();
                 window.explorer().setFocus();
             })
        .group()
        .add(kThemeId, "&Light or Dark",
             [&window] { window.setTheme(currentTheme() == Theme::Light ? Theme::Dark : Theme::Light); });
    addProjectMenu(host, window);
    addRunMenu(host, deeds);
    addStandardToolbar(host);
}

std::shared_ptr<host::Bar> recentMenu(host::Host& host) { return controlOf(host, kRecentMenuId)->popup(); }

} // namespace workbench
