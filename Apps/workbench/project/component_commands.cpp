#include "Apps/workbench/project/component_commands.h"
#include "Apps/workbench/base/text.h"
#include <QFileDialog>

namespace workbench {

void addComponent(host::Host& host, vbide::vbext_ComponentType type) {
    const auto active = host.ActiveVBProject();
    if (!active) return;
    active->VBComponents()->Add(type);
    const auto added = host.SelectedVBComponent(); // an add-in may have replaced the added component
    if (added && !added->HasOpenDesigner()) added->CodeModule()->CodePane()->Show();
}

void addFile(host::Host& host, QWidget* window) {
    const auto active = host.ActiveVBProject();
    if (!active) return;
    const auto path = QFileDialog::getOpenFileName(window, "Add File", QFileInfo(qt(active->FileName())).path(),
                                                   "Source files (*.frm *.bas *.cls *.ctl *.pag *.dob *.dsr)");
    if (!path.isEmpty()) active->VBComponents()->AddFile(text(path));
}

void saveFile(host::Host& host, const ComponentRef& component, QWidget* window) {
    if (component)
        saveWithName(component, window);
    else if (const auto active = host.ActiveVBProject())
        saveWithNames(host, active, window);
}

void saveFileAs(const ComponentRef& component, QWidget* window) {
    if (component) saveUnderNewName(component, window);
}

void removeComponent(const ComponentRef& component, QWidget* window) {
    if (component && mayBeRemoved(component, window)) component->Collection()->Remove(component);
}

void setAsStartUp(const ComponentRef& component) {
    if (component) component->Collection()->StartUpObject({false, component});
}

} // namespace workbench
