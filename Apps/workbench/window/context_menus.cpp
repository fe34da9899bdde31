#include "Apps/workbench/window/context_menus.h"
#include "Apps/workbench/bars/bar_controls.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/scintilla.h"
#include "Apps/workbench/window/command_keys.h"
#include "Apps/workbench/window/commands.h"
#include <QMenu>

namespace workbench {

namespace {

const std::vector<int> kOfForm{kViewCodeId, kViewObjectId,      kGroup,           kSaveFileId, kSaveFileAsId,
                               kGroup,      kRemoveComponentId, kStartUpProjectId};
const std::vector<int> kOfModule{kViewCodeId,        kGroup,           kSaveFileId, kSaveFileAsId, kGroup,
                                 kRemoveComponentId, kStartUpProjectId};
const std::vector<int> kOfProject{host::kSaveProjectId, kSaveProjectAsId, kGroup,
                                  kAddFormId,           kAddModuleId,     kAddClassId,
                                  kAddFileId,           kGroup,           host::kRemoveProjectId};
const std::vector<int> kOfGroup{kAddFormId, kAddModuleId, kAddClassId, kAddFileId};

const std::vector<int> kOfEditor{
    kCutId,          kCopyId,           kPasteId,  kGroup, kFindId,   kReplaceId, kGroup,     kDefinitionId,
    kLastPositionId, kFindReferencesId, kRenameId, kGroup, kIndentId, kOutdentId, kCommentId, kUncommentId};

const std::vector<int> kOfDesigner{kViewCodeId,     kGroup,         kCutId,     kCopyId,      kPasteId, kDeleteId,
                                   kGroup,          kAlignToGridId, kToFrontId, kToBackId,    kGroup,   kTabOrderId,
                                   kLockControlsId, kMenuEditorId,  kGroup,     kPropertiesId};

const std::vector<int>& commandsFor(const ProjectExplorer& explorer) {
    if (const auto component = explorer.currentComponent())
        return component->Type() == vbide::vbext_ct_VBForm ? kOfForm : kOfModule;
    return explorer.currentProject() ? kOfProject : kOfGroup;
}

/// The text of a command outside of its submenu.
QString captionOf(const host::BarControl& command) {
    return command.Id() == kAlignToGridId ? QString("Align to &Grid") : qt(command.Caption());
}

/// Adds an action for each command, with its icon and key.
void fillFrom(QMenu& menu, host::Host& host, const std::vector<int>& ids, const Run& run) {
    for (const int id : ids) {
        if (id == kGroup) {
            menu.addSeparator();
            continue;
        }
        const auto command = controlOf(host, id);
        auto* const action = menu.addAction(captionOf(*command));
        const auto look = commandLookOf(id);
        action->setEnabled(command->Enabled());
        action->setCheckable(command->checked().has_value());
        action->setChecked(command->checked().value_or(false));
        action->setIcon(look.icon);
        action->setShortcut(look.key);
        action->setShortcutVisibleInContextMenu(true);
        QObject::connect(action, &QAction::triggered, &menu, [run, command] { run([&] { command->Execute(); }); });
    }
}

void showExplorerMenu(host::Host& host, ProjectExplorer& explorer, const Run& run, const QPoint& at) {
    if (!explorer.currentItem()) return;
    if (const auto project = explorer.projectOfCurrent()) // the commands work on the active one
        run([&] { host.ActiveVBProject(project); });
    QMenu menu;
    menu.setObjectName("explorerMenu");
    fillFrom(menu, host, commandsFor(explorer), run);
    menu.exec(explorer.viewport()->mapToGlobal(at));
}

void showEditorMenu(host::Host& host, const QWidget& pane, const Run& run, const QPoint& at) {
    QMenu menu;
    menu.setObjectName("editorMenu");
    fillFrom(menu, host, kOfEditor, run);
    menu.exec(pane.mapToGlobal(at));
}

/// Returns at once, as the place may have been clicked in another window, which waits for the answer.
void showDesignerMenu(host::Host& host, QWidget& window, const Run& run, const QPoint& at) {
    auto* const menu = new QMenu(&window);
    menu->setObjectName("designerMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillFrom(*menu, host, kOfDesigner, run);
    menu->popup(at);
}

} // namespace

void addExplorerMenu(host::Host& host, ProjectExplorer& explorer, Run run) {
    explorer.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&explorer, &QWidget::customContextMenuRequested, &explorer,
                     [&host, &explorer, run](const QPoint& at) { showExplorerMenu(host, explorer, run, at); });
}

void addEditorMenu(host::Host& host, CodeWindows& windows, Run run) {
    windows.made = [&host, run](CodeEditor& editor) {
        editor.panes().each([&host, &editor, run](CodeInput& pane) {
            pane.setContextMenuPolicy(Qt::CustomContextMenu);
            QObject::connect(&pane, &QWidget::customContextMenuRequested, &editor,
                             [&host, &pane, run](const QPoint& at) { showEditorMenu(host, pane, run, at); });
        });
    };
}

void addDesignerMenu(host::Host& host, DesignDesk& desk, QWidget& window, Run run) {
    desk.menuRequested = [&host, &window, run](const QPoint& at) { showDesignerMenu(host, window, run, at); };
}

} // namespace workbench
