#pragma once
// How the desktop looks.
#include <QColor>
#include <QPalette>

namespace workbench {

enum class Theme { Light, Dark };

/// Light or dark as the desktop is.
Theme systemTheme();
/// The whole program in one style, so that it looks alike on every desktop.
void apply(Theme theme);
Theme currentTheme();

/// The colours of code.
struct CodeColours {
    QColor paper, text, keyword, comment, string, number, directive, margin, marginText, currentLine, error, warning;
};
const CodeColours& codeColours(Theme theme);

} // namespace workbench
