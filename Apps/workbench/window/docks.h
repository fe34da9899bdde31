#pragma once
// The docks of the window: its own, and one for each tool window of the host.
#include "Add-in/build/messages/udocCompileMsgs.h"
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/code/code_windows.h"
#include "Host/model/host.h"
#include "Host/model/windows/tool_window.h"
#include <QMainWindow>
#include <QPointer>
#include <map>

class QDockWidget;

namespace workbench {

class MessagesView;

class Docks final : public QObject {
public:
    /// Messages mark their lines in the code windows. All arguments must outlive this object.
    Docks(host::Host& host, QMainWindow& window, CodeWindows& code, Run run);

    /// The name identifies the dock in the stored layout.
    QDockWidget* add(const QString& name, const QString& title, QWidget* widget, Qt::DockWidgetArea area);
    /// In the order in which they were added.
    const std::vector<QDockWidget*>& all() const { return all_; }
    /// Called for each dock that is added later.
    std::function<void(QDockWidget&)> added = [](QDockWidget&) {};

    /// See MessagesView.
    std::function<bool()> isStatusCurrent = [] { return true; };
    void drawMessagesSoon();
    /// Gives the commands of the messages the keys of the user's settings.
    void showKeys();

    /// Draws the host's tool windows now and whenever one is added.
    void followToolWindows();
    /// Shows or hides the docks like the host's tool windows.
    void showAsInHost();

private:
    std::vector<MessagesView*> messageViews() const;
    void drawToolWindows();
    void drawToolWindow(const std::shared_ptr<host::ToolWindow>& window);
    void follow(host::ToolWindow& window, QDockWidget& dock);
    void markMessages(const fernwick::udocCompileMsgs& messages);

    host::Host& host_;
    QMainWindow& window_;
    CodeWindows& code_;
    Run run_;
    std::vector<QDockWidget*> all_;
    /// The tool windows that are drawn. The latest of several with the same title has the dock.
    std::map<std::shared_ptr<host::ToolWindow>, QPointer<QDockWidget>> drawn_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
