#pragma once
// Connects form views, properties window, toolbox, tabs and explorer: a selection in one shows in the others.
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/designer/form_windows.h"
#include "Apps/workbench/designer/toolbox.h"
#include "Apps/workbench/project/project_explorer.h"
#include "Apps/workbench/properties/properties_window.h"

namespace workbench {

class DesignDesk final : public QObject {
public:
    /// All of them outlive this. Creates the properties window and the toolbox, which the caller puts into docks.
    DesignDesk(host::Host& host, CodeWindows& tabs, ProjectExplorer& explorer, Run run);

    FormWindows& forms() { return *forms_; }
    PropertiesWindow& properties() { return *properties_; }
    Toolbox& toolbox() { return *toolbox_; }

    /// The component that the user works on: that of the explorer's current entry if the explorer has the focus, else
    /// that of the tab in front.
    vbide::Ref<vbide::VBComponent> inHand() const;
    /// Shows a component's form, or its code if it has no form.
    void open(const vbide::Ref<vbide::VBComponent>& component);
    /// Shows the code of the component that the user works on.
    void showCode();
    /// Shows its form, or its code if the form is in front and has the keys.
    void showObject();
    /// Raised when another form or control is selected, and when a form changed.
    fernwick::Event<> selectionChanged;
    /// Raised while what is selected is dragged.
    fernwick::Event<> placeChanged;
    /// Reads the grid from the user's settings.
    void updateGrid();
    /// Edits the menus of the form in front.
    void editMenus();
    /// Called to open the context menu of the form in front, at a place on the screen.
    std::function<void(const QPoint&)> menuRequested = [](const auto&) {};
    /// Undoes the last change of the form in front, if there is one.
    void undo();
    void redo();
    /// The step of the form in front that `undo` would undo; nothing if there is none.
    std::optional<std::string> stepToUndo() const;
    std::optional<std::string> stepToRedo() const;

private:
    void watch();
    void refreshSoon();
    void followTabs();
    void followExplorer();
    void listTools();
    bool isBesideForm(const QWidget* focus) const;
    void addInMiddle(const std::string& progId);

    host::Host& host_;
    CodeWindows& tabs_;
    ProjectExplorer& explorer_;
    Run run_;
    DesignHistory history_;
    DesignGrid grid_ = storedGrid();
    PropertiesWindow* properties_;
    Toolbox* toolbox_;
    FormWindows* forms_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
