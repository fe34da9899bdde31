#pragma once
#include <string>

namespace fernwick {

/// The add-in's resources by number. On Windows they are linked into the program.
class Resources {
public:
    virtual ~Resources() = default;
    /// Returns a picture as a BMP file's bytes. An error for an unknown number.
    virtual std::string LoadBitmap(int id) const = 0;
};

} // namespace fernwick
