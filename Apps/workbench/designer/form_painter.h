#pragma once
// Draws a form as its designer shows it.
#include "Apps/workbench/designer/form_picture.h"
#include <QPainter>

namespace workbench {

/// The designer's grid, in logical pixels: 120 twips.
inline constexpr int kGridStep = 8;

/// With its frame, from the painter's origin on, as far as the painter's clip lets it through.
void paintForm(QPainter& painter, const FormPicture& form);
/// The size with its frame.
QSizeF wholeSize(const FormPicture& form);
/// The place of each menu of the bar that shows, on the whole form, with its number.
std::vector<std::pair<std::size_t, QRectF>> menuPlaces(const FormPicture& form);

} // namespace workbench
