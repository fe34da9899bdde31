#pragma once
#include <string>

namespace fernwick {

/// In pixels.
struct TextExtent {
    int width = 0;
    int height = 0;
};

/// What a window draws its texts with. Front ends that draw windows implement it.
class DeviceContext {
public:
    virtual ~DeviceContext() = default;
    /// The text in the window's font, on one line: a line break in it is a character like others. Nothing by nothing where
    /// the system cannot tell.
    virtual TextExtent GetTextExtentPoint32(const std::string& text) const noexcept = 0;
};

} // namespace fernwick
