#pragma once
// The constants of the image container, described in docs/qlx-format.md.
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace image {

inline constexpr std::string_view kMagic{"QLX\x1A", 4};
inline constexpr std::uint16_t kMajor = 1, kMinor = 0;
inline constexpr std::size_t kHeaderSize = 20;
inline constexpr std::size_t kSectionEntrySize = 12;
inline constexpr std::string_view kStrings = "STRS", kProject = "PROJ", kForms = "FORM", kModules = "MODS";

} // namespace image
