#pragma once
#include <string>

namespace fernwick {

/// What is compiled into the add-in's own program on other systems, by number.
class Resources {
public:
    virtual ~Resources() = default;
    /// A picture as a BMP file's bytes. An error for a number that is not there.
    virtual std::string LoadBitmap(int id) const = 0;
};

} // namespace fernwick
