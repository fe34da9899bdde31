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

class DesktopWindows;
class MessagesView;

class Docks final : public QObject {
public:
    /// Messages mark their lines in the code windows. All arguments must outlive this object.
    Docks(host::Host& host, QMainWindow& window, CodeWindows& code, DesktopWindows& windows, Run run);
    ~Docks() override;

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
    /// Null for a kind of document that the desktop cannot draw.
    QWidget* viewOf(const std::shared_ptr<host::ToolWindow>& window);
    QWidget* messagesViewOf(const basic::Ref<fernwick::udocCompileMsgs>& messages);
    QDockWidget& dockOf(const QString& title, QWidget* view, Qt::DockWidgetArea area);
    void remove(const std::shared_ptr<host::ToolWindow>& window);
    void follow(const std::shared_ptr<host::ToolWindow>& window, QDockWidget& dock);
    void markMessages(const fernwick::udocCompileMsgs& messages);

    host::Host& host_;
    QMainWindow& window_;
    CodeWindows& code_;
    DesktopWindows& windows_;
    Run run_;
    std::vector<QDockWidget*> all_;
    /// A tool window that is drawn. The latest of several with the same title has the dock.
    struct Drawn {
        QPointer<QDockWidget> dock;
        QMetaObject::Connection toggled;
        std::vector<fernwick::Subscription> watches;
    };
    std::map<std::shared_ptr<host::ToolWindow>, Drawn> drawn_;
    std::vector<fernwick::Subscription> watches_;
};

} // namespace workbench
