#pragma once
// The part of a converted font file's header that identifies the font.
#include "Add-in/platform/files.h"
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fernwick {

/// A font as controls request it and as a converted font file identifies it.
struct FontFace {
    std::string name;
    /// 0 regular, 1 bold, 2 italic, 3 bold italic.
    std::int32_t style = 0;
    /// Points.
    std::int32_t size = 0;
    friend auto operator<=>(const FontFace&, const FontFace&) = default;
};

/// The number of bytes at the start of a file that identify its font.
inline constexpr std::size_t kFontHeadBytes = 512;

/// Returns the font of a file that begins with these bytes. Missing bytes are read as zeros.
FontFace readFontHead(std::string_view head);
/// Returns the font of a file; empty if it cannot be opened.
std::optional<FontFace> CheckFontFile(const FileSystemObject& files, const std::string& path);
/// Returns the name under which the Font Converter stores a font: "Ari_08B.CMF" for 8-point bold Arial.
std::string GetFontFileName(const FontFace& font);
/// Returns the face names under which a converted font is known.
std::array<std::string, 3> convertedFaceNames(const std::string& name);
/// Whether the file holds this font. The face name in the file may end in "CMF" or " CMF".
bool FontFileMatches(const FileSystemObject& files, const std::string& path, const FontFace& font);

} // namespace fernwick
