#pragma once
#include <cstdint>
#include <string>

namespace fernwick {

/// 0x00BBGGRR.
using Color = std::uint32_t;
constexpr Color RGB(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return red | green << 8 | blue << 16;
}

/// Parts of the desktop with a system colour.
enum SysColorIndex : int { COLOR_MENU = 4 };

class Screen {
public:
    virtual ~Screen() = default;
    virtual float TwipsPerPixelX() const = 0;
    virtual float TwipsPerPixelY() const = 0;
    virtual Color GetSysColor(SysColorIndex index) const = 0;
    /// Whether a font family of exactly this name is installed, ignoring letter case. Substitutes by the system do not
    /// count.
    virtual bool FontFamilyExists(const std::string& name) const = 0;
};

} // namespace fernwick
