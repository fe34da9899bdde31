#pragma once
// The widget that a form is drawn on, with its mouse and keyboard handling.
#include "Add-in/platform/events.h"
#include "Apps/workbench/arrange/form_drag.h"
#include "Apps/workbench/designer/form_view.h"
#include "Apps/workbench/designer/tab_order.h"
#include <QWidget>

namespace workbench {

/// Pixels around the form.
inline constexpr int kCanvasMargin = 8;

/// Its input is functions, so that another window can pass on what the user does there. Places are in pixels of this
/// widget.
class FormCanvas final : public QWidget {
public:
    explicit FormCanvas(FormView& view);

    FormView& view() { return view_; }

    // ---- input ----
    /// The left button. With Shift or Ctrl, a control is added to the selection or removed from it.
    void press(const QPointF& at, Qt::KeyboardModifiers modifiers = {});
    /// The mouse without a button, or while it drags.
    void moveTo(const QPointF& at);
    void release(const QPointF& at);
    /// Ends a drag without a change.
    void cancelDrag();
    bool isDragging() const { return drag_.has_value(); }
    /// Opens the code of what is there.
    void doubleClick(const QPointF& at);
    /// Selects what is there, unless it is selected, and opens its menu.
    void contextMenu(const QPointF& at, const QPoint& onScreen);
    /// False for a key that means nothing here.
    bool key(int key, Qt::KeyboardModifiers modifiers = {});

    // ---- what is where ----
    Qt::CursorShape cursorAt(const QPointF& at) const;
    /// The number, from 0 to 7, of a grip that can be pulled now.
    std::optional<int> gripNumberAt(const QPointF& at) const;
    /// The centre of a grip; the origin if there is none of this number.
    QPointF gripPlace(int number) const;
    /// The pointer's shape over the grip of a number, and over everything else.
    static Qt::CursorShape gripCursor(int number);
    Qt::CursorShape surfaceCursor() const;
    /// Null for the form.
    vbide::Ref<vbide::VBControl> controlAt(const QPointF& at) const;
    /// The name and class of a control that is drawn as a symbol or a box; else "".
    QString tipAt(const QPointF& onWidget) const;
    /// Converts a place on the form's inner rectangle to this widget, and back.
    QRectF onCanvas(const QRectF& place) const;
    QPointF onForm(const QPointF& onWidget) const;
    /// The place of the selected control, or of the form, on the form's inner rectangle; while it is dragged, its new one.
    QRectF shownPlace() const;

    /// Shows the order of the Tab key, or ends that. While it is shown, clicks number the controls.
    void switchTabOrder();
    bool showsTabOrder() const { return tabOrder_.has_value(); }

    /// Called after the view has read the form again.
    void formChanged();
    /// Draws the form and its selection, as the widget shows them.
    void draw(QPainter& painter) const;
    /// Draws again.
    void redraw();
    /// Shows the designer as having the focus, while another window passes the keys on.
    void lendFocus(bool lent);
    /// Raised when what is drawn has changed.
    fernwick::Event<> contentChanged;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    QSize sizeHint() const override;

private:
    QPointF innerCorner() const;
    QRectF deviceScreen() const;
    QRectF selectedPlace() const;
    SnapGrid gridFrom(const QPointF& origin) const;
    std::vector<GripPlace> grips() const;
    Grip gripAt(const QPointF& onWidget) const;

    bool pressInTabOrder(const QPointF& onWidget);
    bool beginNew(const QPointF& onWidget);
    bool beginSize(const QPointF& onWidget);
    void beginMove(const QPointF& onWidget);
    void beginFrame(const QPointF& onWidget, const vbide::Ref<vbide::VBControl>& around, bool extends);
    void pressControl(const vbide::Ref<vbide::VBControl>& control, const QPointF& at, Qt::KeyboardModifiers modifiers);
    void finish(const FormDrag& drag);
    void finishFrame(const FormDrag& drag);
    bool openMenu(const QPointF& onWidget);

    bool pressArrow(const QPointF& direction, Qt::KeyboardModifiers modifiers);
    void escape();
    void nudge(const QPointF& step, bool size);
    void nudgeForm(const QPointF& step, bool size);

    void drawDeviceScreen(QPainter& painter) const;
    void drawSelection(QPainter& painter) const;
    void drawOutlines(QPainter& painter) const;
    void drawFrame(QPainter& painter) const;
    void drawGrips(QPainter& painter) const;

    FormView& view_;
    bool isFocusLent_ = false;
    std::optional<FormDrag> drag_;
    std::optional<TabOrder> tabOrder_;
    /// The container in which a frame selects, null for the form, and whether it adds to the selection.
    vbide::Ref<vbide::VBControl> framed_;
    bool frameExtends_ = false;
};

} // namespace workbench
