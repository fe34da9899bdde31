#include "Apps/workbench/window_commands.h"
#include "Apps/workbench/command_icons.h"
#include "Apps/workbench/scintilla.h"
#include "Apps/workbench/text.h"
#include <QDockWidget>
#include <QFileDialog>
#include <QInputDialog>

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

/// A command of the code window that has the focus of the user's work.
std::function<void()> inEditor(MainWindow& window, void (QsciScintilla::*command)()) {
    return [&window, command] {
        if (auto* editor = window.code().current()) (editor->scintilla().*command)();
    };
}

/// Asks what to look for; the text that is selected is offered.
void find(MainWindow& window) {
    auto* const editor = window.code().current();
    if (!editor) return;
    bool accepted = false;
    const auto wanted = QInputDialog::getText(&window, "Find", "Find what:", QLineEdit::Normal,
                                              editor->scintilla().selectedText(), &accepted);
    if (accepted && !wanted.isEmpty()) editor->scintilla().findFirst(wanted, false, false, false, true);
}

void findNext(MainWindow& window) {
    if (auto* editor = window.code().current()) editor->scintilla().findNext();
}

void addComponent(host::Host& host, vbide::vbext_ComponentType type) {
    const auto active = host.ActiveVBProject();
    if (!active) return;
    const auto added = active->VBComponents()->Add(type);
    if (!added->HasOpenDesigner()) added->CodeModule()->CodePane()->Show();
}

void addFile(host::Host& host, MainWindow& window) {
    const auto active = host.ActiveVBProject();
    if (!active) return;
    const auto path = QFileDialog::getOpenFileName(&window, "Add File", QFileInfo(qt(active->FileName())).path(),
                                                   "Source files (*.frm *.bas *.cls *.ctl *.pag *.dob *.dsr)");
    if (!path.isEmpty()) active->VBComponents()->AddFile(text(path));
}

void addEditMenu(host::Host& host, MainWindow& window) {
    menuOf(host, host::kEditMenuId)
        .add(kUndoId, "&Undo",
             [&window, inCode = inEditor(window, &QsciScintilla::undo)] {
                 if (!window.design().undo()) inCode();
             })
        .add(kRedoId, "&Redo", inEditor(window, &QsciScintilla::redo))
        .group()
        .add(kCutId, "Cu&t", inEditor(window, &QsciScintilla::cut))
        .add(kCopyId, "&Copy", inEditor(window, &QsciScintilla::copy))
        .add(kPasteId, "&Paste", inEditor(window, &QsciScintilla::paste))
        .add(kSelectAllId, "Select &All",
             [&window] {
                 if (auto* editor = window.code().current()) editor->scintilla().selectAll();
             })
        .group()
        .add(kFindId, "&Find...", [&window] { find(window); })
        .add(kFindNextId, "Find &Next", [&window] { findNext(window); });
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
    addEditMenu(host, window);
    menuOf(host, host::kViewMenuId)
        .add(kViewCodeId, "&Code", [&window] { window.design().showCode(); })
        .add(kViewObjectId, "O&bject", [&window] { window.design().showObject(); })
        .group()
        .add(kPropertiesId, "Properties &Window",
             [&window] {
                 window.propertiesDock().show();
                 window.design().properties().setFocus();
             })
        .add(kToolboxId, "Toolbo&x",
             [&window] {
                 window.toolboxDock().show();
                 window.design().toolbox().setFocus();
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
