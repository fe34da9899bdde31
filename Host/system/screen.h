#pragma once
#include "Add-in/platform/screen.h"
#include "Basic/case_folding.h"
#include <optional>
#include <unordered_set>

namespace host {

/// Names of font families, letter case ignored.
using FontFamilies = std::unordered_set<std::string, basic::NoCaseHash, basic::NoCaseEqual>;

/// Returns all names of the font families that Fontconfig knows; none if it is not installed.
FontFamilies installedFontFamilies();

/// Uses 15 twips per pixel everywhere, so that forms do not depend on the machine. The installed fonts are read once.
class Screen : public fernwick::Screen {
public:
    float TwipsPerPixelX() const override { return 15; }
    float TwipsPerPixelY() const override { return 15; }
    /// The grey of dialogs, since there is no desktop with colours.
    fernwick::Color GetSysColor(fernwick::SysColorIndex) const override { return fernwick::RGB(192, 192, 192); }
    bool FontFamilyExists(const std::string& name) const override;

private:
    mutable std::optional<FontFamilies> families_;
};

} // namespace host
