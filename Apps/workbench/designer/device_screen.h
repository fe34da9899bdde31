#pragma once
// The screen of the project's device, drawn around a form.
#include "Add-in/platform/host_project.h"
#include <QPainter>
#include <QSizeF>

namespace workbench {

/// The size that the project's device prescribes for the client area of forms, in pixels; empty if it prescribes none or
/// the project is not for a device.
QSizeF deviceScreenOf(const vbide::Ref<vbide::VBComponent>& component);

/// Draws the edge of a device around its screen.
void paintDeviceScreen(QPainter& painter, const QRectF& screen);

/// How far the edge extends beyond the screen.
inline constexpr double kDeviceEdge = 5;

} // namespace workbench
