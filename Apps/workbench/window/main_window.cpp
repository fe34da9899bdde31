#include "Apps/workbench/window/main_window.h"
#include "Apps/workbench/base/text.h"
#include "Basic/conversions.h"
#include "Host/model/windows/tool_windows.h"
#include <QCloseEvent>
#include <QDockWidget>
#include <QSettings>

namespace workbench {

namespace {

constexpr auto kGeometryKey = "window/geometry", kStateKey = "window/state", kThemeKey = "window/theme", kDark = "dark",
               kLight = "light";
/// Counts up when docks and toolbars change so much that an old arrangement makes no sense.
constexpr int kLayoutVersion = 1;
constexpr int kUsualWidth = 1100, kUsualHeight = 720, kUsualExplorerWidth = 270, kUsualToolboxWidth = 140,
              kUsualMessagesHeight = 180;

} // namespace

MainWindow::MainWindow(host::Host& host, BarsView::Run run, MayClose mayClose)
    : host_(host),
      run_(std::move(run)),
      mayClose_(std::move(mayClose)),
      code_(new CodeWindows(host, [this](std::exception_ptr error) { run_([&] { std::rethrow_exception(error); }); })),
      explorer_(new ProjectExplorer(host.shared_from_this(),
                                    {[this](auto project) { run_([&] { host_.ActiveVBProject(project); }); },
                                     [this](auto component) { design_->open(component); },
                                     [this] { code_->refreshSoon(); }})),
      explorerDock_(addDock("explorerDock", "Project", explorer_, Qt::RightDockWidgetArea)),
      design_(new DesignDesk(host, *code_, *explorer_, run_)),
      propertiesDock_(addDock("propertiesDock", "Properties", &design_->properties(), Qt::RightDockWidgetArea)),
      toolboxDock_(addDock("toolboxDock", "Toolbox", &design_->toolbox(), Qt::LeftDockWidgetArea)),
      bars_(host.bars(), *this, run_) {
    setObjectName("workbench");
    setCentralWidget(code_);
    code_->setAccessibleName("Code windows");
    code_->setFocus(); // where work begins; the command of a dock would hide the one that has the keys
    resize(kUsualWidth, kUsualHeight);
    resizeDocks({explorerDock_, toolboxDock_}, {kUsualExplorerWidth, kUsualToolboxWidth}, Qt::Horizontal);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    setAnimated(false); // a toolbar stands where the user lets go of it, and its model says so at once
    titleSoon_.setSingleShot(true);
    titleSoon_.setInterval(0);
    connect(&titleSoon_, &QTimer::timeout, this, [this] { showTitle(); });

    const auto soon = [this](const auto&...) { titleSoon_.start(); };
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemAdded.connect(soon));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemActivated.connect(soon));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemRemoved.connect(soon));
    watches_.push_back(host.Events()->VBProjectsEvents()->ItemRenamed.connect(soon));
    watches_.push_back(host.panes.codeChanged.connect([this](const auto&) { explorer_->refreshSoon(); }));
    watches_.push_back(host.toolWindows().added.connect([this] { drawToolWindows(); }));
    drawToolWindows();
    showTitle();
}

void MainWindow::showTitle() {
    const auto active = host_.ActiveVBProject();
    setWindowTitle(active ? qt(active->Name()) + " - Fernwick Workbench" : QString("Fernwick Workbench"));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    bool closes = false;
    run_([&] { closes = mayClose_(); });
    if (!closes) return event->ignore();
    saveLayout(); // before projects and add-ins take theirs down
    run_([this] { host_.close(); });
    event->accept();
}

// ---- tool windows ------------------------------------------------------------------------------------------------------

QDockWidget* MainWindow::addDock(const QString& name, const QString& title, QWidget* widget, Qt::DockWidgetArea area) {
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(widget);
    if (!restoreDockWidget(dock)) { // what an add-in brings comes after the window was restored
        addDockWidget(area, dock);
        if (area == Qt::BottomDockWidgetArea) resizeDocks({dock}, {kUsualMessagesHeight}, Qt::Vertical);
    }
    allDocks_.push_back(dock);
    dockAdded(*dock);
    return dock;
}

void MainWindow::drawToolWindows() {
    for (const auto& window : host_.toolWindows().list())
        if (!docks_.count(window)) drawToolWindow(window);
}

void MainWindow::drawToolWindow(const std::shared_ptr<host::ToolWindow>& window) {
    const auto messages = basic::cast<fernwick::udocCompileMsgs>(window->document());
    if (!messages) return; // nobody here draws such a document
    const auto title = qt(window->Caption());
    auto* const view = new MessagesView(messages, run_);
    view->drawn = [this, messages] { markMessages(*messages); };
    addActions(view->walk());
    auto* dock = findChild<QDockWidget*>(title);
    if (dock) { // the add-in was connected anew
        delete dock->widget();
        dock->setWidget(view);
    } else
        dock = addDock(title, title, view, Qt::BottomDockWidgetArea);
    docks_[window] = dock;
    follow(*window, *dock);
}

void MainWindow::follow(host::ToolWindow& window, QDockWidget& dock) {
    dock.setVisible(window.Visible());
    watches_.push_back(window.changed.connect([&] { dock.setVisible(window.Visible()); }));
    watches_.push_back(window.focused.connect([&] { dock.raise(); }));
    // a dock behind another one is as good as shown
    connect(dock.toggleViewAction(), &QAction::toggled, this, [this, &window](bool visible) {
        if (isVisible()) window.Visible(visible);
    });
}

void MainWindow::markMessages(const fernwick::udocCompileMsgs& messages) {
    using Document = fernwick::udocCompileMsgs;
    MarksByComponent marks;
    for (int row = 1; row < messages.rowCount(); ++row) {
        const auto& shown = messages.message(row);
        if (shown.cells[Document::LineColumn].empty()) continue;
        marks[shown.cells[Document::TitleColumn]].push_back({basic::CLng(shown.cells[Document::LineColumn]),
                                                             shown.type == fernwick::ERROR_MSG,
                                                             shown.cells[Document::MessageColumn]});
    }
    code_->mark(std::move(marks));
}

// ---- what is remembered ------------------------------------------------------------------------------------------------

void MainWindow::restoreLayout() {
    const QSettings settings;
    if (settings.contains(kThemeKey)) showTheme(settings.value(kThemeKey) == kDark ? Theme::Dark : Theme::Light);
    restoreGeometry(settings.value(kGeometryKey).toByteArray());
    restoreState(settings.value(kStateKey).toByteArray(), kLayoutVersion);
    for (const auto& [window, dock] : docks_)
        if (dock) dock->setVisible(window->Visible()); // the project says whether its messages show
    ownBars_ = host_.bars().items();
    for (const auto& bar : ownBars_) restorePlace(*basic::cast<host::Bar>(bar).shared());
    bars_.placeToolBars();
}

void MainWindow::saveLayout() const {
    QSettings settings;
    settings.setValue(kGeometryKey, saveGeometry());
    settings.setValue(kStateKey, saveState(kLayoutVersion));
    for (const auto& bar : ownBars_) storePlace(*basic::cast<host::Bar>(bar).shared());
}

void MainWindow::setTheme(Theme theme) {
    QSettings().setValue(kThemeKey, theme == Theme::Dark ? kDark : kLight);
    showTheme(theme);
}

void MainWindow::showTheme(Theme theme) {
    apply(theme);
    code_->colour(theme);
    bars_.draw();
}

} // namespace workbench
