#pragma once
#include <string>

namespace fernwick {

/// In pixels.
struct TextExtent {
    int width = 0;
    int height = 0;
};

/// Measures the texts of a window. Implemented by front ends that draw windows.
class DeviceContext {
public:
    virtual ~DeviceContext() = default;
    /// Returns the size of the text in the window's font on one line; a line break counts as an ordinary character.
    /// Zero by zero if the system cannot measure it.
    virtual TextExtent GetTextExtentPoint32(const std::string& text) const noexcept = 0;
};

} // namespace fernwick
