#pragma once
#include <QWidget>
#include <functional>

namespace workbench {

/// The grip above a scroll bar by which the user divides a window.
class SplitGrip final : public QWidget {
public:
    /// `dragged` gets the distance from the top of the window while the grip is dragged, `doubleClicked` nothing.
    SplitGrip(std::function<void(int y)> dragged, std::function<void()> doubleClicked);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    std::function<void(int y)> dragged_;
    std::function<void()> doubleClicked_;
};

} // namespace workbench
