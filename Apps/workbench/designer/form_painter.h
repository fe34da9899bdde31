#pragma once
// Draws a form as in a designer.
#include "Apps/workbench/designer/form_picture.h"
#include "Apps/workbench/options/design_grid.h"
#include <QPainter>

namespace workbench {

/// Draws the form with its frame from the painter's origin. Skips what the painter clips.
void paintForm(QPainter& painter, const FormPicture& form, const DesignGrid& grid = {});
/// Draws what is inside of the frame, without the grid.
void paintInner(QPainter& painter, const FormPicture& form);
/// The size with its frame.
QSizeF wholeSize(const FormPicture& form);
/// The index and the place, on the whole form, of each visible menu of the bar.
std::vector<std::pair<std::size_t, QRectF>> menuPlaces(const FormPicture& form);

} // namespace workbench
