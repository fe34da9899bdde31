#pragma once
// One control of a form with all that drawing it needs.
#include "Add-in/platform/host_project.h"
#include "Apps/workbench/drawing/control_look.h"
#include <QRectF>

namespace workbench {

struct DrawnControl {
    vbide::Ref<vbide::VBControl> control;
    QString name, className;
    int tabIndex = 0;
    /// Its place on the inner rectangle of the form, and the part that its containers do not clip.
    QRectF place, clip;
    /// The origin of its container's coordinates, and the pixels per unit.
    QPointF origin;
    double unitX = 1, unitY = 1;
    ControlLook look;
    bool visible = true;
    /// The index of its container, -1 for the form.
    int container = -1;
};

} // namespace workbench
