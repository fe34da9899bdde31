#pragma once
// Texts in stored results: a length, then the bytes.
#include "Components/Image/image_bytes.h"
#include <string_view>

namespace cli {

inline void writeText(image::Writer& out, std::string_view text) {
    out.variable(static_cast<std::uint32_t>(text.size()));
    out.raw(text);
}

inline std::string_view readText(image::Reader& in) { return in.raw(in.variable()); }

} // namespace cli
