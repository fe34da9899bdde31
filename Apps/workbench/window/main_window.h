#pragma once
// The window of the IDE: it draws the host's model and contains none of the add-in's behaviour.
#include "Apps/workbench/bars/bars_view.h"
#include "Apps/workbench/base/notice_bar.h"
#include "Apps/workbench/code/code_commands.h"
#include "Apps/workbench/code/find_bar.h"
#include "Apps/workbench/code/mark_commands.h"
#include "Apps/workbench/designer/design_desk.h"
#include "Apps/workbench/project/project_explorer.h"
#include "Apps/workbench/search/search_results.h"
#include "Apps/workbench/window/docks.h"
#include "Apps/workbench/window/edit_focus.h"
#include "Apps/workbench/window/place_status.h"
#include "Host/model/host.h"
#include <QMainWindow>

namespace workbench {

class MainWindow final : public QMainWindow {
public:
    /// Asked before the window closes; false keeps it open.
    using MayClose = std::function<bool()>;

    MainWindow(host::Host& host, DesktopWindows& windows, Run run, MayClose mayClose);

    CodeWindows& code() { return *code_; }
    FindBar& findBar() { return *findBar_; }
    NoticeBar& notice() { return *notice_; }
    CodeCommands& codeCommands() { return codeCommands_; }
    MarkCommands& markCommands() { return markCommands_; }
    ProjectExplorer& explorer() { return *explorer_; }
    /// Form views and the properties window.
    DesignDesk& design() { return *design_; }
    EditFocus& editFocus() { return *editFocus_; }
    BarsView& bars() { return bars_; }
    Docks& docks() { return docks_; }
    SearchResults& results() { return *results_; }
    QDockWidget& explorerDock() { return *explorerDock_; }
    QDockWidget& propertiesDock() { return *propertiesDock_; }
    QDockWidget& toolboxDock() { return *toolboxDock_; }

    /// Restores the window, its docks and the host's own toolbars from the user's settings. An add-in stores the places
    /// of its toolbars itself.
    void restoreLayout();
    void saveLayout() const;
    /// Stores the theme. Before the first call the window follows the desktop.
    void setTheme(Theme theme);
    /// Shows what the user chose in the options.
    void optionsChanged();
    /// Shows the dock of the search results and moves the focus there.
    void showResults();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildCentre();
    void connectSearch();
    QSize usualSize() const;
    void watchProjects();
    void watchFocus();
    void activateProjectInFront();
    void showTitle();
    Theme chosenTheme() const;
    void showTheme(Theme theme);

    host::Host& host_;
    const Theme desktopTheme_ = currentTheme();
    Run run_;
    MayClose mayClose_;
    CodeWindows* code_;
    FindBar* findBar_;
    NoticeBar* notice_;
    CodeCommands codeCommands_;
    MarkCommands markCommands_;
    Docks docks_;
    ProjectExplorer* explorer_;
    QDockWidget* explorerDock_;
    DesignDesk* design_;
    EditFocus* editFocus_;
    QDockWidget* propertiesDock_;
    QDockWidget* toolboxDock_;
    SearchResults* results_;
    QDockWidget* resultsDock_;
    /// The host's own bars, whose places are in the user's settings.
    std::vector<office::Ref<office::CommandBar>> ownBars_;
    QTimer titleSoon_, activateSoon_;
    std::vector<fernwick::Subscription> watches_;
    BarsView bars_;
    PlaceStatus place_;
};

} // namespace workbench
