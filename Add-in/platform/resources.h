#pragma once
#include <string>

namespace fernwick {

/// Resources of the add-in by number, which other systems compile into the program.
class Resources {
public:
    virtual ~Resources() = default;
    /// Returns a picture as a BMP file's bytes. An error for an unknown number.
    virtual std::string LoadBitmap(int id) const = 0;
};

} // namespace fernwick
