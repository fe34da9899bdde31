#pragma once
#include "Add-in/platform/screen.h"

namespace fernwick {

/// Whether a font family of exactly this name is installed, letter case ignored. What the system would draw in
/// its place does not count.
inline bool WinFontExists(const Screen& screen, const std::string& name) {
    return !name.empty() && screen.FontFamilyExists(name);
}

} // namespace fernwick
