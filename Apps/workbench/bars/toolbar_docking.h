#pragma once
// Places the toolbars according to the host's model, and writes the places to which the user drags them to the model.
#include "Apps/workbench/bars/bar_place.h"
#include <QMainWindow>
#include <QTimer>
#include <QToolBar>
#include <memory>
#include <vector>

namespace workbench {

/// A toolbar followed by space, so that the next one in its row begins at its stored position.
class DockedBar final : public QToolBar {
public:
    using QToolBar::QToolBar;

    QSize sizeHint() const override;
    /// Pixels along the row.
    void spaceAfter(int pixels);

private:
    int room_ = 0;
};

class ToolBarDocking final : public QObject {
public:
    explicit ToolBarDocking(QMainWindow& window);

    /// Returns the toolbar of a bar, creating it if necessary.
    QToolBar& toolBarOf(const std::shared_ptr<host::Bar>& bar);
    /// Deletes the toolbars of all other bars.
    void keep(const std::vector<std::shared_ptr<host::Bar>>& bars);
    /// Moves the toolbars to their places in the model, unless all are in place.
    void place();
    /// Like place, but always moves them.
    void placeAgain() { layOut(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry {
        std::shared_ptr<host::Bar> bar;
        DockedBar* toolBar;
        /// When it was last placed or written back.
        BarPlace placed;
    };

    using Row = std::vector<Entry*>;

    void layOut();
    void dock(const Row& side);
    static void makeRoom(const Row& side);
    void floatBar(const Entry& entry);
    void writeBack();
    static void readSide(const Row& side, int position);
    /// The toolbars of a side in order, row by row.
    Row side(int position);
    Row shownAt(int position);

    QMainWindow& window_;
    std::vector<Entry> entries_;
    QTimer settled_;
};

} // namespace workbench
