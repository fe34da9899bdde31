#include "Apps/workbench/bars/toolbar_docking.h"
#include "Apps/workbench/base/text.h"
#include <QEvent>
#include <QLayout>
#include <algorithm>
#include <set>

namespace workbench {

namespace {

int positionOf(const QMainWindow& window, const QToolBar& toolBar) {
    if (toolBar.isFloating()) return office::msoBarFloating;
    const auto area = window.toolBarArea(&toolBar);
    for (const auto& side : kBarSides)
        if (side.area == area) return side.position;
    return office::msoBarTop;
}

/// The position across the rows, counted from the outermost one.
int across(const QPoint& at, int position) {
    const int way = isUpright(position) ? at.x() : at.y();
    return position == office::msoBarRight || position == office::msoBarBottom ? -way : way;
}

} // namespace

QSize DockedBar::sizeHint() const {
    const auto room = orientation() == Qt::Vertical ? QSize(0, room_) : QSize(room_, 0);
    return QToolBar::sizeHint() + (isFloating() ? QSize() : room);
}

void DockedBar::spaceAfter(int pixels) {
    if (std::exchange(room_, pixels) != pixels) updateGeometry();
}

ToolBarDocking::ToolBarDocking(QMainWindow& window) : window_(window) {
    settled_.setSingleShot(true);
    settled_.setInterval(0); // after the window has laid out what the user dropped
    connect(&settled_, &QTimer::timeout, this, [this] { writeBack(); });
    window.installEventFilter(this);
}

QToolBar& ToolBarDocking::toolBarOf(const std::shared_ptr<host::Bar>& bar) {
    const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const auto& e) { return e.bar == bar; });
    if (known != entries_.end()) return *known->toolBar;
    auto* const toolBar = new DockedBar(qt(bar->Name()), &window_);
    toolBar->setObjectName(qt(bar->Name()));
    toolBar->installEventFilter(this);
    connect(toolBar, &QToolBar::topLevelChanged, this, [this] { settled_.start(); });
    connect(toolBar->toggleViewAction(), &QAction::triggered, this, [link = std::weak_ptr(bar)](bool shows) {
        if (const auto toggled = link.lock()) toggled->Visible(shows);
    });
    constexpr int kNowhere = -1; // so that place() moves it
    entries_.push_back({bar, toolBar, {.position = kNowhere}});
    return *toolBar;
}

void ToolBarDocking::keep(const std::vector<std::shared_ptr<host::Bar>>& bars) {
    std::erase_if(entries_, [&](const Entry& entry) {
        const bool removed = std::find(bars.begin(), bars.end(), entry.bar) == bars.end();
        if (removed) entry.toolBar->deleteLater();
        return removed;
    });
}

void ToolBarDocking::place() {
    const auto isInPlace = [](const Entry& entry) { return entry.placed == placeOf(*entry.bar); };
    if (!std::all_of(entries_.begin(), entries_.end(), isInPlace)) layOut();
}

ToolBarDocking::Row ToolBarDocking::side(int position) {
    Row found;
    for (auto& entry : entries_)
        if (entry.placed.position == position) found.push_back(&entry);
    std::stable_sort(found.begin(), found.end(), [](const Entry* one, const Entry* other) {
        return std::pair(one->placed.row, one->placed.begin()) < std::pair(other->placed.row, other->placed.begin());
    });
    return found;
}

ToolBarDocking::Row ToolBarDocking::shownAt(int position) {
    auto shown = side(position);
    std::erase_if(shown, [](const Entry* entry) { return !entry->placed.visible; });
    return shown;
}

void ToolBarDocking::layOut() {
    for (auto& entry : entries_) {
        entry.placed = placeOf(*entry.bar);
        if (!isPlace(entry.placed.position)) entry.placed.position = office::msoBarTop;
        entry.toolBar->spaceAfter(0);
    }
    for (const auto& [position, area] : kBarSides) {
        dock(side(position));
        makeRoom(shownAt(position));
    }
    for (const auto* entry : side(office::msoBarFloating)) floatBar(*entry);
    settled_.start(); // so that an add-in can store their final places
}

void ToolBarDocking::dock(const Row& side) {
    for (const auto* entry : side) {
        if (entry->toolBar->isFloating()) entry->toolBar->setWindowFlags(Qt::Widget);
        window_.removeToolBar(entry->toolBar);
    }
    int row = side.empty() ? 0 : side.front()->placed.row;
    for (const auto* entry : side) {
        const auto area = areaOf(entry->placed.position);
        if (std::exchange(row, entry->placed.row) != entry->placed.row) window_.addToolBarBreak(area);
        window_.addToolBar(area, entry->toolBar);
        entry->toolBar->setVisible(entry->placed.visible);
    }
}

void ToolBarDocking::makeRoom(const Row& side) {
    int end = 0;
    for (std::size_t i = 0; i + 1 < side.size(); ++i) {
        const auto& placed = side[i]->placed;
        const auto& next = side[i + 1]->placed;
        const auto size = side[i]->toolBar->sizeHint();
        end += isUpright(placed.position) ? size.height() : size.width();
        const bool sameRow = next.row == placed.row;
        const int room = sameRow ? std::max(0, next.begin() - end) : 0;
        side[i]->toolBar->spaceAfter(room);
        end = sameRow ? end + room : 0;
    }
}

/// Uses the window flags that Qt sets when a toolbar is dragged away.
void ToolBarDocking::floatBar(const Entry& entry) {
    if (window_.toolBarArea(entry.toolBar) == Qt::NoToolBarArea) window_.addToolBar(entry.toolBar);
    entry.toolBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    entry.toolBar->adjustSize();
    entry.toolBar->move(entry.placed.left, entry.placed.top);
    entry.toolBar->setVisible(entry.placed.visible);
}

bool ToolBarDocking::eventFilter(QObject* watched, QEvent* event) {
    const auto type = event->type();
    if (type == QEvent::MouseButtonRelease || (type == QEvent::Show && watched == &window_)) settled_.start();
    return false;
}

void ToolBarDocking::writeBack() {
    if (!window_.isVisible()) return;
    window_.layout()->activate();
    for (auto& entry : entries_)
        if (entry.placed.visible) entry.placed.position = positionOf(window_, *entry.toolBar);
    for (const auto& [position, area] : kBarSides) readSide(shownAt(position), position);
    for (auto* entry : shownAt(office::msoBarFloating)) {
        entry->placed.left = entry->toolBar->x();
        entry->placed.top = entry->toolBar->y();
    }
    for (const auto& entry : entries_) setPlace(*entry.bar, entry.placed);
}

void ToolBarDocking::readSide(const Row& side, int position) {
    std::set<int> rows;
    QPoint corner(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    for (const auto* entry : side) {
        const auto at = entry->toolBar->pos();
        rows.insert(across(at, position));
        corner = {std::min(corner.x(), at.x()), std::min(corner.y(), at.y())};
    }
    for (auto* entry : side) {
        const auto at = entry->toolBar->pos();
        entry->placed.row = int(std::distance(rows.begin(), rows.find(across(at, position)))) + 1;
        entry->placed.left = (at - corner).x();
        entry->placed.top = (at - corner).y();
    }
}

} // namespace workbench
