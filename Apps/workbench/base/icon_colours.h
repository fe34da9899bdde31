#pragma once
// The colours of the program's own pictures in both themes.
#include "Apps/workbench/base/theme.h"
#include <QColor>
#include <array>
#include <string_view>

namespace workbench {

struct IconColour {
    std::string_view word;
    const char *light, *dark;

    QColor in(Theme theme) const { return theme == Theme::Light ? light : dark; }
};

inline constexpr std::array kIconColours{
    IconColour{"ink", "#3a3d42", "#d3d5d9"},   IconColour{"blue", "#2a6fc9", "#6ea8fe"},
    IconColour{"green", "#2e7d32", "#6fc274"}, IconColour{"amber", "#b8690a", "#e0a63c"},
    IconColour{"red", "#c42b2b", "#f4766e"},   IconColour{"paper", "#ffffff", "#1e1f22"},
};

} // namespace workbench
