#pragma once
// Texts of this room.
#include <string_view>

namespace fernwick::texts {

inline constexpr std::string_view kNoProgId = "Could not get ProgID of {progId}\r\ndefined in {deviceKey}";
inline constexpr std::string_view kNoTypeLibrary = "Could not load Type Library \r\ndefined in {deviceKey}";

} // namespace fernwick::texts
