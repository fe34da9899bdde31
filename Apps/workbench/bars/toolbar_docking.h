#pragma once
// Where the toolbars stand: the host's model says it, and what the user drags is written back to the model.
#include "Apps/workbench/bars/bar_place.h"
#include <QMainWindow>
#include <QTimer>
#include <QToolBar>
#include <memory>
#include <vector>

namespace workbench {

/// A toolbar with room behind it, so that the next one of its row begins where it is to.
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

    /// The toolbar of a bar, made when it has none.
    QToolBar& toolBarOf(const std::shared_ptr<host::Bar>& bar);
    /// Toolbars of bars that are not among these go.
    void keep(const std::vector<std::shared_ptr<host::Bar>>& bars);
    /// Moves the toolbars to where the model has them; none when all stand there.
    void place();
    /// As place, also when something else than the user has moved them.
    void placeAnew() { layOut(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry {
        std::shared_ptr<host::Bar> bar;
        DockedBar* toolBar;
        /// As it was placed or written back last.
        BarPlace placed;
    };

    using Row = std::vector<Entry*>;

    void layOut();
    void dock(const Row& side);
    static void makeRoom(const Row& side);
    void floatBar(const Entry& entry);
    void writeBack();
    static void readSide(const Row& side, int position);
    /// In their order, row by row.
    Row side(int position);
    Row shownAt(int position);

    QMainWindow& window_;
    std::vector<Entry> entries_;
    QTimer settled_;
};

} // namespace workbench
