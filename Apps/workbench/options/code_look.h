#pragma once
// The look of code, from the user's settings.
#include "Apps/workbench/base/theme.h"
#include "Apps/workbench/options/option.h"
#include <QFont>
#include <array>

namespace workbench {

/// A colour of code that the user can change, in each theme.
struct CodeColour {
    const char *name, *label;
    QColor CodeColours::*part;
    /// What is below it; null for a background.
    QColor CodeColours::*paper;

    ColourOption option(Theme theme) const;
};
inline constexpr std::array kCodeColours{
    CodeColour{"background", "Background", &CodeColours::paper, nullptr},
    CodeColour{"text", "Text", &CodeColours::text, &CodeColours::paper},
    CodeColour{"keywords", "Keywords", &CodeColours::keyword, &CodeColours::paper},
    CodeColour{"comments", "Comments", &CodeColours::comment, &CodeColours::paper},
    CodeColour{"strings", "Strings", &CodeColours::string, &CodeColours::paper},
    CodeColour{"numbers", "Numbers and dates", &CodeColours::number, &CodeColours::paper},
    CodeColour{"directives", "Directives", &CodeColours::directive, &CodeColours::paper},
    CodeColour{"currentLine", "Current line", &CodeColours::currentLine, nullptr},
    CodeColour{"margin", "Margin", &CodeColours::margin, nullptr},
    CodeColour{"lineNumbers", "Line numbers", &CodeColours::marginText, &CodeColours::margin},
    CodeColour{"errors", "Errors", &CodeColours::error, &CodeColours::paper},
    CodeColour{"warnings", "Warnings", &CodeColours::warning, &CodeColours::margin},
};

/// What all code windows share.
struct CodeLook {
    QFont font;
    int tabWidth;
    CodeColours colours;
};
QFont codeFont(const QString& family, int points);
CodeColours storedColours(Theme theme);
CodeLook storedCodeLook(Theme theme);

} // namespace workbench
