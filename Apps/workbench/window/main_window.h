#pragma once
// The IDE's window: it draws the host's model and holds no behaviour of the add-in's.
#include "Apps/workbench/bars/bars_view.h"
#include "Apps/workbench/code/code_windows.h"
#include "Apps/workbench/designer/design_desk.h"
#include "Apps/workbench/messages/messages_view.h"
#include "Apps/workbench/project/project_explorer.h"
#include "Host/model/windows/tool_window.h"
#include "Host/model/host.h"
#include <QMainWindow>
#include <QPointer>
#include <map>

class QDockWidget;

namespace workbench {

class MainWindow final : public QMainWindow {
public:
    /// Asked before the window goes; false keeps it.
    using MayClose = std::function<bool()>;

    MainWindow(host::Host& host, BarsView::Run run, MayClose mayClose);

    CodeWindows& code() { return *code_; }
    ProjectExplorer& explorer() { return *explorer_; }
    QDockWidget& explorerDock() { return *explorerDock_; }
    QDockWidget& propertiesDock() { return *propertiesDock_; }
    /// Form views and the properties window.
    DesignDesk& design() { return *design_; }
    QDockWidget& toolboxDock() { return *toolboxDock_; }
    /// In the order in which they came.
    const std::vector<QDockWidget*>& docks() const { return allDocks_; }
    /// Told of each dock that comes later.
    std::function<void(QDockWidget&)> dockAdded = [](QDockWidget&) {};
    /// Window, docks and the host's own toolbars as the user left them, in the user's settings; an add-in keeps the
    /// places of its toolbars itself.
    void restoreLayout();
    void saveLayout() const;
    /// Remembered from then on; until then the window looks as the desktop does.
    void setTheme(Theme theme);
    /// Does what the user asks for, and tells an error of it in a box.
    void run(const std::function<void()>& act) { run_(act); }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QDockWidget* addDock(const QString& name, const QString& title, QWidget* widget, Qt::DockWidgetArea area);
    void drawToolWindows();
    void drawToolWindow(const std::shared_ptr<host::ToolWindow>& window);
    void follow(host::ToolWindow& window, QDockWidget& dock);
    void markMessages(const fernwick::udocCompileMsgs& messages);
    void showTitle();
    void showTheme(Theme theme);

    host::Host& host_;
    BarsView::Run run_;
    MayClose mayClose_;
    CodeWindows* code_;
    ProjectExplorer* explorer_;
    std::vector<QDockWidget*> allDocks_;
    QDockWidget* explorerDock_;
    DesignDesk* design_;
    QDockWidget* propertiesDock_;
    QDockWidget* toolboxDock_;
    /// Tool windows that are drawn, the latest of a title in the dock of that title.
    std::map<std::shared_ptr<host::ToolWindow>, QPointer<QDockWidget>> docks_;
    /// The host's own, whose places the user's settings keep.
    std::vector<office::Ref<office::CommandBar>> ownBars_;
    QTimer titleSoon_;
    std::vector<fernwick::Subscription> watches_;
    BarsView bars_;
};

} // namespace workbench
