#include "Apps/workbench/project/component_commands.h"
#include "Apps/workbench/project/project_saving.h"

namespace workbench {

void saveFile(host::Host& host, MainWindow& window) {
    const auto component = window.design().inHand();
    if (component)
        saveWithName(component, &window);
    else if (const auto active = host.ActiveVBProject())
        saveWithNames(host, active, &window);
}

void saveFileAs(MainWindow& window) {
    if (const auto component = window.design().inHand()) saveUnderNewName(component, &window);
}

void removeComponent(MainWindow& window) {
    const auto component = window.design().inHand();
    if (!component || !mayBeRemoved(component, &window)) return;
    component->Collection()->Remove(component);
}

void setAsStartUp(MainWindow& window) {
    if (const auto component = window.design().inHand()) component->Collection()->StartUpObject({false, component});
}

} // namespace workbench
