#include "Apps/workbench/window_commands.h"
#include "Apps/workbench/command_icons.h"
#include "Apps/workbench/component_commands.h"
#include "Apps/workbench/dock_menu.h"
#include "Apps/workbench/menu_builder.h"
#include "Apps/workbench/project_properties.h"
#include "Apps/workbench/project_saving.h"
#include "Apps/workbench/scintilla.h"
#include "Apps/workbench/text.h"
#include "Apps/workbench/window_menu.h"
#include <QFileDialog>
#include <QInputDialog>

namespace workbench {

namespace {

constexpr int kTopOfWindow = 1;

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
    active->VBComponents()->Add(type)->CodeModule()->CodePane()->Show();
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
        .add(kUndoId, "&Undo", inEditor(window, &QsciScintilla::undo))
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
    menuOf(host, host::kViewMenuId).add(kViewCodeId, "&Code", [&window] { viewCode(window); });
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
    addEditMenu(host, window);
    addViewMenu(host, window);
    addProjectMenu(host, window);
    addRunMenu(host, deeds);
    addAddInsMenu(host);
    addWindowMenu(host, window.code());
    addHelpMenu(host, deeds);
    addStandardToolbar(host);
}

std::shared_ptr<host::Bar> recentMenu(host::Host& host) { return controlOf(host, kRecentMenuId)->popup(); }

} // namespace workbench
