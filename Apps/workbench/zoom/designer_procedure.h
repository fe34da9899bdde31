#pragma once
// What the windows of designers do with messages.
#include "Apps/workbench/zoom/mouse_route.h"
#include <QPointF>
#include <optional>

namespace workbench {

/// One for all designers: it finds the window by its number.
class DesignerProcedure {
public:
    struct Callbacks {
        /// Makes a component the selected one of the host.
        std::function<void(FormView&)> activate;
        /// Sets the pointer's shape over the zoomed picture.
        std::function<void(Qt::CursorShape)> showCursor;
    };
    DesignerProcedure(MouseRoute& mouse, Callbacks callbacks) : mouse_(mouse), callbacks_(std::move(callbacks)) {}

    std::intptr_t surface(const DesignerWindow& designer, const fernwick::WindowMessage& message);
    /// The number of a grip is from 0.
    std::intptr_t grip(const DesignerWindow& designer, int grip, const fernwick::WindowMessage& message);

private:
    std::intptr_t press(const DesignerWindow& designer, const fernwick::WindowMessage& message, const QPointF& at);
    std::intptr_t focus(const DesignerWindow& designer);

    MouseRoute& mouse_;
    Callbacks callbacks_;
    /// Of the grip that is being dragged: where it was pressed, and its first move.
    QPointF gripPressed_;
    std::optional<QPointF> gripOrigin_;
};

} // namespace workbench
