#include "Apps/workbench/window/docks.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/messages/messages_view.h"
#include "Apps/workbench/zoom/zoom_view.h"
#include "Basic/conversions.h"
#include "Host/model/windows/tool_windows.h"
#include <QAction>
#include <QDockWidget>
#include <QTimer>

namespace workbench {

namespace {

constexpr int kUsualMessagesHeight = 180;

} // namespace

Docks::Docks(host::Host& host, QMainWindow& window, CodeWindows& code, DesktopWindows& windows, Run run)
    : host_(host), window_(window), code_(code), windows_(windows), run_(std::move(run)) {}

Docks::~Docks() = default;

QDockWidget* Docks::add(const QString& name, const QString& title, QWidget* widget, Qt::DockWidgetArea area) {
    auto* const dock = new QDockWidget(title, &window_);
    dock->setObjectName(name);
    dock->setWidget(widget);
    if (!window_.restoreDockWidget(dock)) { // an add-in adds its docks after the window's layout was restored
        window_.addDockWidget(area, dock);
        if (area == Qt::BottomDockWidgetArea) window_.resizeDocks({dock}, {kUsualMessagesHeight}, Qt::Vertical);
        if (dynamic_cast<ZoomView*>(widget)) window_.resizeDocks({dock}, {widget->sizeHint().height()}, Qt::Vertical);
    }
    all_.push_back(dock);
    added(*dock);
    return dock;
}

void Docks::followToolWindows() {
    watches_.push_back(host_.toolWindows().added.connect([this] { drawToolWindows(); }));
    watches_.push_back(host_.toolWindows().removed.connect([this](const auto& window) { remove(window); }));
    drawToolWindows();
}

void Docks::showAsInHost() {
    for (const auto& [window, drawn] : drawn_)
        if (drawn.dock) drawn.dock->setVisible(window->Visible());
}

void Docks::drawToolWindows() {
    for (const auto& window : host_.toolWindows().list())
        if (!drawn_.count(window)) drawToolWindow(window);
}

void Docks::drawToolWindow(const std::shared_ptr<host::ToolWindow>& window) {
    auto* const view = viewOf(window);
    if (!view) return;
    const bool isZoom = dynamic_cast<ZoomView*>(view) != nullptr;
    auto& dock = dockOf(qt(window->Caption()), view, isZoom ? Qt::RightDockWidgetArea : Qt::BottomDockWidgetArea);
    drawn_[window].dock = &dock;
    follow(window, dock);
}

QWidget* Docks::viewOf(const std::shared_ptr<host::ToolWindow>& window) {
    if (const auto messages = basic::cast<fernwick::udocCompileMsgs>(window->document()))
        return messagesViewOf(messages);
    if (const auto zoom = basic::cast<fernwick::udocZoomWindow>(window->document()))
        return new ZoomView(zoom, windows_, run_,
                            [model = window.get()](auto width, auto height) { model->resize(width, height); });
    return nullptr;
}

QWidget* Docks::messagesViewOf(const basic::Ref<fernwick::udocCompileMsgs>& messages) {
    auto* const view = new MessagesView(messages, run_);
    view->isStatusCurrent = [this] { return isStatusCurrent(); };
    view->drawn = [this, messages] { markMessages(*messages); };
    window_.addActions(view->walk());
    return view;
}

/// An add-in that is connected again finds the dock of its earlier window.
QDockWidget& Docks::dockOf(const QString& title, QWidget* view, Qt::DockWidgetArea area) {
    auto* const dock = window_.findChild<QDockWidget*>(title);
    if (!dock) return *add(title, title, view, area);
    delete dock->widget();
    dock->setWidget(view);
    return *dock;
}

/// The dock stays for the next window of this title.
void Docks::remove(const std::shared_ptr<host::ToolWindow>& window) {
    const auto found = drawn_.find(window);
    if (found == drawn_.end()) return;
    disconnect(found->second.toggled);
    if (found->second.dock) delete found->second.dock->widget();
    drawn_.erase(found);
}

std::vector<MessagesView*> Docks::messageViews() const {
    std::vector<MessagesView*> views;
    for (const auto& [window, drawn] : drawn_)
        if (auto* const view = drawn.dock ? dynamic_cast<MessagesView*>(drawn.dock->widget()) : nullptr)
            views.push_back(view);
    return views;
}

void Docks::drawMessagesSoon() {
    for (auto* view : messageViews()) view->drawSoon();
}

void Docks::showKeys() {
    for (auto* view : messageViews()) view->showKeys();
}

void Docks::follow(const std::shared_ptr<host::ToolWindow>& window, QDockWidget& dock) {
    auto& drawn = drawn_[window];
    auto* const model = window.get();
    dock.setVisible(model->Visible());
    drawn.watches.push_back(model->changed.connect([&dock, model] { dock.setVisible(model->Visible()); }));
    drawn.watches.push_back(model->focused.connect([&dock] { dock.raise(); }));
    // unlike visibilityChanged, this counts a dock that is tabbed behind another as shown
    drawn.toggled =
        connect(dock.toggleViewAction(), &QAction::toggled, &dock, [this, &dock, weak = std::weak_ptr(window)] {
            // a dock that is moved out of the window is hidden for a moment
            QTimer::singleShot(0, &dock, [this, &dock, weak] {
                const auto model = weak.lock();
                if (model && window_.isVisible()) run_([&] { model->Visible(!dock.isHidden()); });
            });
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
