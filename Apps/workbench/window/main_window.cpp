#include "Apps/workbench/window/main_window.h"
#include "Apps/workbench/bars/bar_controls.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/base/title.h"
#include "Apps/workbench/options/declared_options.h"
#include "Apps/workbench/project/project_saving.h"
#include "Apps/workbench/window/command_keys.h"
#include "Apps/workbench/window/commands.h"
#include "Basic/conversions.h"
#include <QApplication>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QDockWidget>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>

namespace workbench {

namespace {

constexpr auto kGeometryKey = "window/geometry", kStateKey = "window/state";
/// To be incremented when docks and toolbars change so much that a stored layout no longer fits.
constexpr int kLayoutVersion = 1;
constexpr int kUsualWidth = 1100, kUsualHeight = 720, kUsualExplorerWidth = 270, kUsualToolboxWidth = 140;

} // namespace

MainWindow::MainWindow(host::Host& host, DesktopWindows& windows, Run run, MayClose mayClose)
    : host_(host),
      run_(std::move(run)),
      mayClose_(std::move(mayClose)),
      code_(new CodeWindows(host, [this](std::exception_ptr error) { run_([&] { std::rethrow_exception(error); }); })),
      findBar_(new FindBar(*code_, run_)),
      notice_(new NoticeBar),
      codeCommands_(*code_, *notice_),
      markCommands_(*code_, *notice_, run_),
      docks_(host, *this, *code_, windows, run_),
      explorer_(new ProjectExplorer(host.shared_from_this(),
                                    {[this](auto project) { run_([&] { host_.ActiveVBProject(project); }); },
                                     [this](auto component) { design_->open(component); },
                                     [this] { code_->refreshSoon(); }})),
      explorerDock_(docks_.add("explorerDock", "Project", explorer_, Qt::RightDockWidgetArea)),
      design_(new DesignDesk(host, *code_, *explorer_, run_)),
      editFocus_(new EditFocus(*code_, *design_)),
      propertiesDock_(docks_.add("propertiesDock", "Properties", &design_->properties(), Qt::RightDockWidgetArea)),
      toolboxDock_(docks_.add("toolboxDock", "Toolbox", &design_->toolbox(), Qt::LeftDockWidgetArea)),
      results_(new SearchResults(host, *code_, run_)),
      resultsDock_(docks_.add("resultsDock", "Search Results", results_, Qt::BottomDockWidgetArea)),
      bars_(host.bars(), *this, run_, commandLookOf),
      place_(*statusBar(), *code_, *design_) {
    setObjectName("workbench");
    buildCentre();
    connectSearch();
    code_->leaveKeys(chosenKeys());
    resize(usualSize());
    resizeDocks({explorerDock_, toolboxDock_}, {kUsualExplorerWidth, kUsualToolboxWidth}, Qt::Horizontal);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    setAnimated(false); // a toolbar must be in its final place when its place is written to the model
    watchProjects();
    watchFocus();
    docks_.followToolWindows();
    showTitle();
}

/// Leaves room for the frame, which has no size yet.
QSize MainWindow::usualSize() const {
    constexpr int kFrameWidth = 16, kFrameHeight = 48;
    const auto free = screen()->availableSize() - QSize(kFrameWidth, kFrameHeight);
    return QSize(kUsualWidth, kUsualHeight).boundedTo(free);
}

/// The tabs, with the find bar below them.
void MainWindow::buildCentre() {
    auto* const centre = new QWidget;
    auto* const rows = new QVBoxLayout(centre);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(code_, 1);
    rows->addWidget(notice_);
    rows->addWidget(findBar_);
    setCentralWidget(centre);
    code_->setAccessibleName("Code windows");
    code_->setFocus(); // else a dock would have it, and the dock's command would hide the dock
}

void MainWindow::connectSearch() {
    resultsDock_->hide();
    findBar_->list = [this](const CodePattern& pattern, const QString& what, std::vector<Stretch> where) {
        results_->search(pattern, what, std::move(where));
        showResults();
    };
    findBar_->start = [this]() -> CodePlace {
        const auto active = host_.ActiveVBProject();
        if (!active || active->VBComponents()->Count() == 0) return {};
        return {active->VBComponents()->Item(1), 0, 0, 0};
    };
}

void MainWindow::showResults() {
    resultsDock_->show();
    resultsDock_->raise();
    results_->setFocus();
}

void MainWindow::watchProjects() {
    titleSoon_.setSingleShot(true);
    titleSoon_.setInterval(0);
    connect(&titleSoon_, &QTimer::timeout, this, [this] { showTitle(); });
    const auto soon = [this](const auto&...) { titleSoon_.start(); };
    const auto events = host_.Events()->VBProjectsEvents();
    watches_.push_back(events->ItemAdded.connect(soon));
    watches_.push_back(events->ItemActivated.connect(soon));
    watches_.push_back(events->ItemRemoved.connect(soon));
    watches_.push_back(events->ItemRenamed.connect(soon));
    watches_.push_back(host_.panes.codeChanged.connect([this](const auto& component) {
        if (!code_->editorOf(component)) explorer_->refreshSoon();
    }));
    code_->refreshed = [this] { explorer_->refreshSoon(); };
}

/// As in the language's own IDE, the project of the window that the user works in is the active one.
void MainWindow::watchFocus() {
    activateSoon_.setSingleShot(true);
    activateSoon_.setInterval(0); // saving closes a designer and opens it again
    connect(&activateSoon_, &QTimer::timeout, this, [this] { activateProjectInFront(); });
    connect(code_, &QTabWidget::currentChanged, this, [this] { activateSoon_.start(); });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && code_->isAncestorOf(now)) activateSoon_.start();
    });
}

void MainWindow::activateProjectInFront() {
    auto* const focus = QApplication::focusWidget();
    if (!focus || !code_->isAncestorOf(focus)) return; // a run is in progress, or the user is elsewhere
    const auto* const form = design_->forms().current();
    const auto* const editor = code_->current();
    const auto component = form ? form->component() : editor ? editor->component() : nullptr;
    const auto project = component ? projectOf(component) : nullptr;
    if (project && project != host_.ActiveVBProject()) run_([&] { host_.ActiveVBProject(project); });
}

void MainWindow::showTitle() {
    const auto active = host_.ActiveVBProject();
    setWindowTitle(active ? qt(active->Name()) + " - " + kTitle : QString(kTitle));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    bool closes = false;
    run_([&] { closes = mayClose_(); });
    if (!closes) return event->ignore();
    saveLayout(); // before projects and add-ins remove their docks and toolbars
    run_([this] { host_.close(); });
    event->accept();
}

// ---- stored settings ------------------------------------------------------------------------------------------------

void MainWindow::restoreLayout() {
    const QSettings settings;
    showTheme(chosenTheme());
    restoreGeometry(settings.value(kGeometryKey).toByteArray());
    restoreState(settings.value(kStateKey).toByteArray(), kLayoutVersion);
    docks_.showAsInHost(); // the project stores whether its messages are shown
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
    kThemeOption.store(theme == Theme::Dark ? kDarkTheme : kLightTheme);
    showTheme(theme);
}

void MainWindow::optionsChanged() {
    showTheme(chosenTheme());
    design_->updateGrid();
    code_->leaveKeys(chosenKeys());
    docks_.showKeys();
    bars_.showKeys();
}

Theme MainWindow::chosenTheme() const {
    const int chosen = kThemeOption.stored();
    return chosen == kSystemTheme ? desktopTheme_ : chosen == kDarkTheme ? Theme::Dark : Theme::Light;
}

void MainWindow::showTheme(Theme theme) {
    apply(theme);
    code_->showLook();
    if (const auto command = controlOf(host_, kThemeId)) command->checked(theme == Theme::Dark);
    bars_.draw();
}

} // namespace workbench
