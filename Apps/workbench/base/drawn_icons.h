#pragma once
// The program's own icons. They are drawn in the colours of the theme, at the resolution of each screen.
#include <QIcon>
#include <string>
#include <string_view>

namespace workbench {

/// Draws strokes as icon_table.h describes them; they outlive the icon.
QIcon iconOfStrokes(std::string_view strokes);

/// Null for an unknown name; icon_table.h has the names.
QIcon drawnIcon(std::string_view name);

/// The icon of a control's class as named in a form's text. A control of a device has that of its kind; an unknown class
/// has a common one.
QIcon iconOfControl(const std::string& className);

} // namespace workbench
