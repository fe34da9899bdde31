#pragma once
// The paper that a form is drawn on, and what the mouse and the keyboard do there.
#include "Apps/workbench/designer/form_grips.h"
#include "Apps/workbench/designer/form_view.h"
#include <QWidget>

namespace workbench {

/// Pixels around the form.
inline constexpr int kCanvasMargin = 8;

class FormCanvas final : public QWidget {
public:
    explicit FormCanvas(FormView& view);

    /// The view has read the form anew.
    void formChanged();
    /// The place of a control, or of the form's inner rectangle, on this widget.
    QRectF onCanvas(const QRectF& place) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    QSize sizeHint() const override;

private:
    /// A move or a change of size under way.
    struct Drag {
        QPointF from;
        Grip grip = Grip::None; ///< none moves
        QRectF before, now;
        QPointF origin; ///< of the grid
        bool isLine = false;
        std::string tool; ///< what is being drawn, "" for nothing new
    };

    QPointF innerCorner() const;
    QPointF onForm(const QPointF& onWidget) const;
    /// What is selected: its place on the form.
    QRectF selectedPlace() const;
    std::vector<GripPlace> grips() const;
    Grip gripAt(const QPointF& onWidget) const;
    bool beginNew(const QPointF& onWidget);
    void beginDrag(const QPointF& onWidget, Grip grip);
    bool openMenu(const QPointF& onWidget);
    void nudge(const QPointF& step, bool size);
    void drawSelection(QPainter& painter) const;

    FormView& view_;
    std::optional<Drag> drag_;
};

} // namespace workbench
