#pragma once
// Draws a form as in a designer.
#include "Apps/workbench/designer/form_picture.h"
#include <QPainter>

namespace workbench {

/// The designer's grid, in logical pixels: 120 twips.
inline constexpr int kGridStep = 8;

/// Draws the form with its frame from the painter's origin. Skips what the painter clips.
void paintForm(QPainter& painter, const FormPicture& form);
/// Draws what is inside of the frame, without the grid.
void paintInner(QPainter& painter, const FormPicture& form);
/// The size with its frame.
QSizeF wholeSize(const FormPicture& form);
/// The index and the place, on the whole form, of each visible menu of the bar.
std::vector<std::pair<std::size_t, QRectF>> menuPlaces(const FormPicture& form);

} // namespace workbench
