#include "Apps/workbench/project/explorer_menu.h"
#include "Apps/workbench/bars/command_icons.h"
#include "Apps/workbench/base/menu_builder.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/window/main_window.h"
#include <QMenu>

namespace workbench {

namespace {

constexpr int kLine = 0;

const std::vector<int> kOfForm{kViewCodeId,        kViewObjectId,    kLine, kSaveFileId, kSaveFileAsId, kLine,
                               kRemoveComponentId, kStartUpProjectId};
const std::vector<int> kOfModule{kViewCodeId,      kLine, kSaveFileId, kSaveFileAsId, kLine, kRemoveComponentId,
                                 kStartUpProjectId};
const std::vector<int> kOfProject{host::kSaveProjectId,  kSaveProjectAsId, kLine,      kAddFormId,
                                  kAddModuleId,          kAddClassId,      kAddFileId, kLine,
                                  host::kRemoveProjectId};
const std::vector<int> kOfGroup{kAddFormId, kAddModuleId, kAddClassId, kAddFileId};

const std::vector<int>& commandsFor(const ProjectExplorer& explorer) {
    if (const auto component = explorer.currentComponent())
        return component->Type() == vbide::vbext_ct_VBForm ? kOfForm : kOfModule;
    return explorer.currentProject() ? kOfProject : kOfGroup;
}

void fill(QMenu& menu, host::Host& host, MainWindow& window) {
    for (const int id : commandsFor(window.explorer())) {
        if (id == kLine) {
            menu.addSeparator();
            continue;
        }
        const auto command = controlOf(host, id);
        QObject::connect(menu.addAction(iconOf(id), qt(command->Caption())), &QAction::triggered, &window,
                         [&window, command] { window.run([&] { command->Execute(); }); });
    }
}

} // namespace

void addExplorerMenu(host::Host& host, MainWindow& window) {
    auto& explorer = window.explorer();
    explorer.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&explorer, &QWidget::customContextMenuRequested, &window, [&](const QPoint& at) {
        if (!explorer.currentItem()) return;
        if (const auto project = explorer.currentProject()) // the commands are about the active one
            window.run([&] { host.ActiveVBProject(project); });
        QMenu menu;
        fill(menu, host, window);
        menu.exec(explorer.viewport()->mapToGlobal(at));
    });
}

} // namespace workbench
