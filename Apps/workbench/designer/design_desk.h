#pragma once
// Form views and the properties window, tied to the tabs and the explorer: what is selected in one shows in the others.
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/designer/form_windows.h"
#include "Apps/workbench/designer/properties_window.h"
#include "Apps/workbench/designer/toolbox.h"
#include "Apps/workbench/project/project_explorer.h"

namespace workbench {

class DesignDesk final : public QObject {
public:
    /// All of them outlive this. The properties window and the toolbox are made here, for docks.
    DesignDesk(host::Host& host, CodeWindows& tabs, ProjectExplorer& explorer, Run run);

    FormWindows& forms() { return *forms_; }
    PropertiesWindow& properties() { return *properties_; }
    Toolbox& toolbox() { return *toolbox_; }

    /// What the user works on: an entry of the explorer that has the focus, else the tab in front.
    vbide::Ref<vbide::VBComponent> inHand() const;
    /// Shows a component's form, or its code where it has none.
    void open(const vbide::Ref<vbide::VBComponent>& component);
    /// The code of what the user works on.
    void showCode();
    /// Its form; where that is in front already, its code.
    void showObject();
    /// Takes back the last change of the form in front. False when no form is in front.
    bool undo();

private:
    void watch();
    void refreshSoon();
    void followTabs();
    void followExplorer();
    void listTools();
    void addInMiddle(const std::string& progId);

    host::Host& host_;
    CodeWindows& tabs_;
    ProjectExplorer& explorer_;
    Run run_;
    DesignHistory history_;
    PropertiesWindow* properties_;
    Toolbox* toolbox_;
    FormWindows* forms_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
