#pragma once
// The widget that a form is drawn on, with its mouse and keyboard handling.
#include "Apps/workbench/designer/form_grips.h"
#include "Apps/workbench/designer/form_view.h"
#include <QWidget>

namespace workbench {

/// Pixels around the form.
inline constexpr int kCanvasMargin = 8;

class FormCanvas final : public QWidget {
public:
    explicit FormCanvas(FormView& view);

    FormView& view() { return view_; }

    /// Called after the view has read the form again.
    void formChanged();
    /// Converts a place on the form's inner rectangle to this widget.
    QRectF onCanvas(const QRectF& place) const;
    /// The place of the selected control, or of the form, on the form's inner rectangle; while it is dragged, its new one.
    QRectF shownPlace() const;
    /// The name and class of a control that is drawn as a symbol or a box; else "".
    QString tipAt(const QPointF& onWidget) const;

protected:
    bool event(QEvent* event) override;
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
    /// A move or a change of size in progress.
    struct Drag {
        QPointF from;
        Grip grip = Grip::None; ///< None moves the whole
        QRectF before, now;
        QPointF origin; ///< of the grid
        bool isLine = false;
        std::string tool; ///< the class of a new control, "" for a move
    };

    QPointF innerCorner() const;
    QPointF onForm(const QPointF& onWidget) const;
    QRectF selectedPlace() const;
    SnapGrid gridFrom(const QPointF& origin) const;
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
