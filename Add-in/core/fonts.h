#pragma once
#include "Add-in/platform/screen.h"

namespace fernwick {

/// Whether a font family of exactly this name is installed, ignoring letter case. Substitutes by the system do not
/// count.
inline bool WinFontExists(const Screen& screen, const std::string& name) {
    return !name.empty() && screen.FontFamilyExists(name);
}

} // namespace fernwick
