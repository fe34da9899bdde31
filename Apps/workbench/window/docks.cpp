#include "Apps/workbench/window/docks.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/messages/messages_view.h"
#include "Basic/conversions.h"
#include "Host/model/windows/tool_windows.h"
#include <QAction>
#include <QDockWidget>

namespace workbench {

namespace {

constexpr int kUsualMessagesHeight = 180;

} // namespace

Docks::Docks(host::Host& host, QMainWindow& window, CodeWindows& code, Run run)
    : host_(host), window_(window), code_(code), run_(std::move(run)) {}

QDockWidget* Docks::add(const QString& name, const QString& title, QWidget* widget, Qt::DockWidgetArea area) {
    auto* const dock = new QDockWidget(title, &window_);
    dock->setObjectName(name);
    dock->setWidget(widget);
    if (!window_.restoreDockWidget(dock)) { // an add-in adds its docks after the window's layout was restored
        window_.addDockWidget(area, dock);
        if (area == Qt::BottomDockWidgetArea) window_.resizeDocks({dock}, {kUsualMessagesHeight}, Qt::Vertical);
    }
    all_.push_back(dock);
    added(*dock);
    return dock;
}

void Docks::followToolWindows() {
    watches_.push_back(host_.toolWindows().added.connect([this] { drawToolWindows(); }));
    drawToolWindows();
}

void Docks::showAsInHost() {
    for (const auto& [window, dock] : drawn_)
        if (dock) dock->setVisible(window->Visible());
}

void Docks::drawToolWindows() {
    for (const auto& window : host_.toolWindows().list())
        if (!drawn_.count(window)) drawToolWindow(window);
}

void Docks::drawToolWindow(const std::shared_ptr<host::ToolWindow>& window) {
    const auto messages = basic::cast<fernwick::udocCompileMsgs>(window->document());
    if (!messages) return; // the only kind of document that the desktop can draw
    const auto title = qt(window->Caption());
    auto* const view = new MessagesView(messages, run_);
    view->isStatusCurrent = [this] { return isStatusCurrent(); };
    view->drawn = [this, messages] { markMessages(*messages); };
    window_.addActions(view->walk());
    auto* dock = window_.findChild<QDockWidget*>(title);
    if (dock) { // the add-in was connected again
        delete dock->widget();
        dock->setWidget(view);
    } else
        dock = add(title, title, view, Qt::BottomDockWidgetArea);
    drawn_[window] = dock;
    follow(*window, *dock);
}

std::vector<MessagesView*> Docks::messageViews() const {
    std::vector<MessagesView*> views;
    for (const auto& [window, dock] : drawn_)
        if (auto* const view = dock ? dynamic_cast<MessagesView*>(dock->widget()) : nullptr) views.push_back(view);
    return views;
}

void Docks::drawMessagesSoon() {
    for (auto* view : messageViews()) view->drawSoon();
}

void Docks::showKeys() {
    for (auto* view : messageViews()) view->showKeys();
}

void Docks::follow(host::ToolWindow& window, QDockWidget& dock) {
    dock.setVisible(window.Visible());
    watches_.push_back(window.changed.connect([&] { dock.setVisible(window.Visible()); }));
    watches_.push_back(window.focused.connect([&] { dock.raise(); }));
    // unlike visibilityChanged, this counts a dock that is tabbed behind another as shown
    connect(dock.toggleViewAction(), &QAction::toggled, this, [this, &window](bool visible) {
        if (window_.isVisible()) window.Visible(visible);
    });
}

void Docks::markMessages(const fernwick::udocCompileMsgs& messages) {
    using Document = fernwick::udocCompileMsgs;
    MarksByComponent marks;
    for (int row = 1; row < messages.rowCount(); ++row) {
        const auto& shown = messages.message(row);
        if (shown.cells[Document::LineColumn].empty()) continue;
        marks[shown.cells[Document::TitleColumn]].push_back({basic::CLng(shown.cells[Document::LineColumn]),
                                                             shown.type == fernwick::ERROR_MSG,
                                                             shown.cells[Document::MessageColumn]});
    }
    code_.mark(std::move(marks));
}

} // namespace workbench
