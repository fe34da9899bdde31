#pragma once
// The colours of the desktop.
#include <QColor>
#include <QPalette>

namespace workbench {

enum class Theme { Light, Dark };

/// The theme that is closer to the palette in use.
Theme systemTheme();
/// Sets the style and palette of the whole program, so that it looks the same on every desktop.
void apply(Theme theme);
Theme currentTheme();

/// The colour of the edges of fields and boxes.
QColor edgeColour(Theme theme);

/// The colours of the code windows.
struct CodeColours {
    QColor paper, text, keyword, comment, string, number, directive, margin, marginText, currentLine, error, warning,
        chosenName;
};
const CodeColours& codeColours(Theme theme);

} // namespace workbench
