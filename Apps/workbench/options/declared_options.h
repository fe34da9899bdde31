#pragma once
// The options of the program. Those of colours are in code_look.h, those of keys come from the tables of the commands.
#include "Apps/workbench/options/option.h"

namespace workbench {

// ---- code windows ----

inline constexpr FamilyOption kCodeFont{"code/fontFamily"};
/// In points.
inline constexpr NumberOption kCodeFontSize{"code/fontSize", 10, 6, 48};
/// In characters; an indentation is as wide.
inline constexpr NumberOption kTabWidth{"code/tabWidth", 4, 1, 16};
/// Whether Enter keeps the indentation, and lines that end a block are indented like the one that opens it.
inline constexpr FlagOption kAutoIndent{"code/autoIndent", true};
/// Whether Enter writes the end of the block that a line opens.
inline constexpr FlagOption kAutomaticEnds{"code/automaticEnds", true};
/// Whether the names of libraries are written as they are declared when a line is left.
inline constexpr FlagOption kLibraryNames{"code/libraryNames", true};
/// Whether lines are drawn between procedures.
inline constexpr FlagOption kProcedureLines{"code/procedureLines", true};
/// Whether procedures and blocks can be folded.
inline constexpr FlagOption kFolding{"code/folding", true};
/// Whether names are listed where one must follow, as after a point.
inline constexpr FlagOption kAutoListMembers{"code/autoListMembers", true};
/// Whether the parameters of a call and the declaration below the mouse are shown.
inline constexpr FlagOption kAutoQuickInfo{"code/autoQuickInfo", true};
/// Whether the syntax of a line is checked when the cursor leaves it.
inline constexpr FlagOption kAutoSyntaxCheck{"code/autoSyntaxCheck", true};

// ---- form designers ----

/// The distance of the grid's points in pixels of 15 twips.
inline constexpr NumberOption kGridPixels{"designer/gridPixels", 8, 2, 64};
inline constexpr FlagOption kGridVisible{"designer/gridVisible", true};
/// Whether what the mouse or the keyboard moves is aligned to the grid.
inline constexpr FlagOption kGridSnaps{"designer/gridSnaps", true};

// ---- the properties window ----

inline constexpr FlagOption kPropertiesCategorized{"properties/categorized", false};
inline constexpr FlagOption kPropertyDescriptions{"properties/descriptions", true};

// ---- the window ----

inline constexpr const char* kThemeNames[]{"system", "light", "dark"};
/// The indices of kThemeNames. System is the desktop's theme when the program started.
enum ThemeChoice : int { kSystemTheme, kLightTheme, kDarkTheme };
inline constexpr ChoiceOption kThemeOption{"window/theme", kThemeNames};

} // namespace workbench
