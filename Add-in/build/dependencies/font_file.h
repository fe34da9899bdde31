#pragma once
// The head of a converted font file, as far as it tells which font the file holds.
#include "Add-in/platform/files.h"
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fernwick {

/// A font as controls ask for it, and as a converted font file names it.
struct FontFace {
    std::string name;
    /// 0 regular, 1 bold, 2 italic, 3 bold italic.
    std::int32_t style = 0;
    /// Points.
    std::int32_t size = 0;
    friend auto operator<=>(const FontFace&, const FontFace&) = default;
};

/// As many bytes of a file as tell its font.
inline constexpr std::size_t kFontHeadBytes = 512;

/// The font of a file that begins with these bytes. What lies behind their end reads as zeros.
FontFace readFontHead(std::string_view head);
/// The font of a file; nothing when it can't be opened.
std::optional<FontFace> CheckFontFile(const FileSystemObject& files, const std::string& path);
/// The name under which the Font Converter stores a font: "Ari_08B.CMF" for bold Arial of 8 points.
std::string GetFontFileName(const FontFace& font);
/// The face names under which a converted font is known.
std::array<std::string, 3> convertedFaceNames(const std::string& name);
/// Whether the file holds this font, its face name as it is or with the converter's mark behind it.
bool FontFileMatches(const FileSystemObject& files, const std::string& path, const FontFace& font);

} // namespace fernwick
