#pragma once
// The designer of a form: draws it and lets the user edit it by mouse and keyboard.
#include "Apps/workbench/designer/form_picture.h"
#include "Apps/workbench/options/design_grid.h"
#include "Apps/workbench/properties/design_history.h"
#include <QScrollArea>
#include <QTimer>
#include <functional>
#include <optional>

namespace workbench {

class FormCanvas;

class FormView final : public QScrollArea {
public:
    using Control = vbide::Ref<vbide::VBControl>;

    /// The view's calls to the desktop.
    struct Callbacks {
        /// Runs an edit and shows an error in a box.
        std::function<void(const std::function<void()>&)> run;
        /// The selection changed.
        std::function<void()> selected;
        /// The view got the focus.
        std::function<void()> focused;
        /// Returns the class that is selected in the toolbox, "" for none.
        std::function<std::string()> tool;
        /// The tool was used or cancelled.
        std::function<void()> toolUsed;
        /// What is selected is dragged to another place.
        std::function<void()> placeChanged;
        /// The form was read again, or shows its tab order or not.
        std::function<void()> formChanged;
        std::function<DesignGrid()> grid;
        /// Opens the designer's context menu at a place on the screen.
        std::function<void(const QPoint&)> menu;
    };

    /// Reads the form. Error 380 for a file without the description of a form.
    FormView(vbide::Ref<vbide::VBComponent> component, DesignHistory& history, Callbacks callbacks);

    const vbide::Ref<vbide::VBComponent>& component() const { return component_; }
    const FormPicture& picture() const { return picture_; }
    /// See deviceScreenOf.
    const QSizeF& deviceScreen() const { return deviceScreen_; }
    /// The control whose properties are shown; null if the form itself is selected.
    Control selected() const { return selection_.empty() ? nullptr : selection_.back(); }
    /// All selected controls, which are in one container. The last one leads. Empty for the form.
    const std::vector<Control>& selection() const { return selection_; }
    bool isSelected(const Control& control) const;
    /// Null, or a control that is not on the form, selects the form.
    void select(const Control& control);
    void select(std::vector<Control> controls);
    /// The place of the selected control, or of the form, in pixels on the form's inner rectangle. While it is dragged,
    /// its new one.
    QRectF shownPlace() const;
    FormCanvas& canvas() { return *canvas_; }
    /// Reads the form again when Qt's loop turns.
    void reloadSoon() { reload_.start(); }
    /// Reads the size of the device's screen again.
    void updateDeviceScreen();
    /// Undoes the last change of this form.
    void undo();
    void redo();
    /// Runs an edit as one step of the history, shows an error in a box, and reads the form again. A dialog of an add-in
    /// may close this view in the meantime.
    void change(const std::string& step, const std::function<void()>& act);

    // ---- for the canvas ----
    const DrawnControl* drawnSelection() const { return picture_.find(selected()); }
    /// The selected controls that are drawn; the last one leads.
    std::vector<const DrawnControl*> drawnSelections() const;
    /// The same without the leader.
    std::vector<const DrawnControl*> drawnBesideLeader() const;
    /// Adds a control to the selection, or removes it. A control in another container is selected alone.
    void selectAlso(const Control& control);
    /// Makes a selected control the leader, or selects another one alone.
    void lead(const Control& control);
    /// Selects the controls directly in a container, null for the form, that a place touches.
    void selectTouched(const QRectF& place, const Control& container, bool extends);
    /// Moves or resizes the last ones of the drawn selection, or with one place the form's inner rectangle. Writes only
    /// what differs.
    void place(const std::string& step, const std::vector<QRectF>& places);
    void removeSelected(const std::string& step = "Delete");
    /// Adds a control of a class to the topmost container at the place's corner, and selects it. Without a size, the
    /// control gets the usual one.
    void add(const std::string& progId, const QRectF& place);
    /// Shows the handler of the selected control's default event.
    void openCode();
    void openCode(const Control& control);
    /// Selects the next control in tab order (1), or the previous one (-1).
    void selectNext(int step);
    /// Selects the nearest control in a direction.
    void selectBeside(const QPointF& direction);
    const Callbacks& callbacks() const { return callbacks_; }

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void reload();
    void selectionChanged();
    QRectF withSize(const Control& added, const QRectF& place) const;
    /// Sets the font, the place and the caption of a new control.
    void finish(const Control& added, const QRectF& place);
    /// As `change`, without a step.
    void edit(const std::function<void()>& act);

    vbide::Ref<vbide::VBComponent> component_;
    DesignHistory& history_;
    Callbacks callbacks_;
    FormPicture picture_;
    QSizeF deviceScreen_;
    std::vector<Control> selection_;
    FormCanvas* canvas_;
    QTimer reload_;
};

} // namespace workbench
