#pragma once
// What the mouse does between its press and its release on a form.
#include "Apps/workbench/arrange/form_grips.h"
#include <string>
#include <vector>

namespace workbench {

/// All places are in pixels on the form's inner rectangle.
class FormDrag {
public:
    enum class Kind {
        Move, ///< all selected controls
        Size, ///< the one whose grip is pulled
        Draw, ///< a new control
        Frame ///< a rectangle around controls to select
    };

    /// `places` are those of the controls; the last one leads. A single line is drawn as such.
    static FormDrag moving(const QPointF& from, std::vector<QRectF> places, const SnapGrid& grid, bool isLine);
    static FormDrag sizing(const QPointF& from, Grip grip, const QRectF& place, const SnapGrid& grid, bool isLine);
    static FormDrag drawing(const QPointF& from, const SnapGrid& grid, std::string tool);
    static FormDrag framing(const QPointF& from);

    Kind kind() const { return kind_; }
    /// The class of the new control.
    const std::string& tool() const { return tool_; }
    bool isLine() const { return isLine_; }
    void moveTo(const QPointF& at);
    /// Whether the places differ from those at the start.
    bool hasChanged() const { return now_ != before_; }
    const std::vector<QRectF>& places() const { return now_; }
    /// That of the leader, or of what is drawn.
    const QRectF& place() const { return now_.back(); }

private:
    FormDrag(Kind kind, const QPointF& from, std::vector<QRectF> places, const SnapGrid& grid);
    void moveAll(const QPointF& by);

    Kind kind_;
    QPointF from_;
    Grip grip_ = Grip::None;
    std::vector<QRectF> before_, now_;
    SnapGrid grid_;
    bool isLine_ = false;
    std::string tool_;
};

} // namespace workbench
