#pragma once
// A form on its designer: drawn, and edited by mouse and keyboard.
#include "Apps/workbench/designer/design_history.h"
#include "Apps/workbench/designer/form_picture.h"
#include <QScrollArea>
#include <QTimer>
#include <functional>
#include <optional>

namespace workbench {

class FormCanvas;

class FormView final : public QScrollArea {
public:
    /// What the view asks of the desktop.
    struct Callbacks {
        /// Does it, and tells the user of an error.
        std::function<void(const std::function<void()>&)> run;
        /// Another control is selected, or the form itself.
        std::function<void()> selected;
        /// The user works here now.
        std::function<void()> focused;
        /// The class that is picked in the toolbox, "" for none.
        std::function<std::string()> tool;
        /// The tool has done its work, or is put back.
        std::function<void()> toolUsed;
    };

    /// Reads the form. Error 380 for a file without the description of one.
    FormView(vbide::Ref<vbide::VBComponent> component, DesignHistory& history, Callbacks callbacks);

    const vbide::Ref<vbide::VBComponent>& component() const { return component_; }
    const FormPicture& picture() const { return picture_; }
    /// Nothing when the form itself is selected.
    const vbide::Ref<vbide::VBControl>& selected() const { return selected_; }
    /// A control that is not on the form selects the form.
    void select(const vbide::Ref<vbide::VBControl>& control);
    /// The form's text changed: reads it when Qt's loop turns.
    void reloadSoon() { reload_.start(); }
    /// Takes back the last change of this form.
    void undo();

    // ---- for the canvas ----
    const DrawnControl* drawnSelection() const { return picture_.find(selected_); }
    /// Puts the selected control, or the form's inner rectangle, there; only what differs is written.
    void place(const QRectF& place);
    void removeSelected();
    /// Adds a control of a class there, in the container that is in front at the place's corner, and selects it. A place
    /// without a size gets the usual one.
    void add(const std::string& progId, const QRectF& place);
    /// The code of the selected control's default event.
    void openCode();
    void openCode(const vbide::Ref<vbide::VBControl>& control);
    /// The next one in the order of tabs, by steps of 1 or -1.
    void selectNext(int step);
    /// The nearest one in a direction of the screen.
    void selectBeside(const QPointF& direction);
    const Callbacks& callbacks() const { return callbacks_; }

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void reload();
    /// Gives a new control its place, and its name to show.
    void finish(const vbide::Ref<vbide::VBControl>& added, const QRectF& place);
    /// Does it, tells of an error, and reads the form again. What an add-in shows meanwhile may close this view.
    void edit(const std::function<void()>& act);

    vbide::Ref<vbide::VBComponent> component_;
    DesignHistory& history_;
    Callbacks callbacks_;
    FormPicture picture_;
    vbide::Ref<vbide::VBControl> selected_;
    FormCanvas* canvas_;
    QTimer reload_;
};

} // namespace workbench
