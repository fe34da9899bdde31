#include "Apps/workbench/component_commands.h"
#include "Apps/workbench/project_saving.h"

namespace workbench {

vbide::Ref<vbide::VBComponent> currentComponent(MainWindow& window) {
    auto& explorer = window.explorer();
    if (explorer.hasFocus() && explorer.currentComponent()) return explorer.currentComponent();
    if (auto* editor = window.code().current()) return editor->component();
    return explorer.currentComponent();
}

void viewCode(MainWindow& window) {
    if (const auto component = currentComponent(window)) component->CodeModule()->CodePane()->Show();
}

void saveFile(host::Host& host, MainWindow& window) {
    const auto component = currentComponent(window);
    if (component)
        saveWithName(component, &window);
    else if (const auto active = host.ActiveVBProject())
        saveWithNames(host, active, &window);
}

void saveFileAs(MainWindow& window) {
    if (const auto component = currentComponent(window)) saveUnderNewName(component, &window);
}

void removeComponent(MainWindow& window) {
    const auto component = currentComponent(window);
    if (!component || !mayBeRemoved(component, &window)) return;
    component->Collection()->Remove(component);
}

void setAsStartUp(MainWindow& window) {
    if (const auto component = currentComponent(window)) component->Collection()->StartUpObject({false, component});
}

} // namespace workbench
