#pragma once
#include "Add-in/platform/screen.h"
#include "Basic/case_folding.h"
#include <optional>
#include <unordered_set>

namespace host {

/// Names of font families, letter case ignored.
using FontFamilies = std::unordered_set<std::string, basic::NoCaseHash, basic::NoCaseEqual>;

/// The families that Fontconfig knows on this machine, under all their names; none where it is not installed.
FontFamilies installedFontFamilies();

/// 15 twips a pixel wherever we run, so that a project's forms come out alike everywhere; the machine's own fonts,
/// looked at once.
class Screen : public fernwick::Screen {
public:
    float TwipsPerPixelX() const override { return 15; }
    float TwipsPerPixelY() const override { return 15; }
    /// The grey of dialogs: there is no desktop whose colours we could take.
    fernwick::Color GetSysColor(fernwick::SysColorIndex) const override { return fernwick::RGB(192, 192, 192); }
    bool FontFamilyExists(const std::string& name) const override;

private:
    mutable std::optional<FontFamilies> families_;
};

} // namespace host
