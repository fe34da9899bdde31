#pragma once
#include <string>

namespace fernwick {

class Screen {
public:
    virtual ~Screen() = default;
    virtual float TwipsPerPixelX() const = 0;
    virtual float TwipsPerPixelY() const = 0;
    /// Whether a font family of exactly this name is installed, letter case ignored; what the system would
    /// put in its place does not count.
    virtual bool FontFamilyExists(const std::string& name) const = 0;
};

} // namespace fernwick
