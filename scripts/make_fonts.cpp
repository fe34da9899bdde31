// Converts a font of this system for devices. docs/cmf-format.md describes the format.
// Usage: convert FILE FACE SIZE STYLE PIXELS OUTPUT
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <ft2build.h>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>
#include FT_FREETYPE_H

namespace {

constexpr int kFirstCode = 32, kLastCode = 255, kMissingCode = '?';
constexpr std::size_t kNameAt = 24, kBodyAt = 56, kLongestName = 32;

/// Where Windows-1252 differs from Unicode; 0 for undefined bytes.
constexpr char32_t kFrom80[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                  0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char32_t characterOf(int code) {
    if (code == 0x7F) return 0;
    return code >= 0x80 && code < 0xA0 ? kFrom80[code - 0x80] : char32_t(code);
}

/// A rendered glyph. `width` is the advance; 0 for a missing glyph.
struct Glyph {
    int width = 0, left = 0, top = 0, columns = 0, rows = 0;
    std::vector<bool> ink;
};

class Face {
public:
    Face(const std::string& file, int pixels) {
        if (FT_Init_FreeType(&library_) != 0 || FT_New_Face(library_, file.c_str(), 0, &face_) != 0 ||
            FT_Set_Pixel_Sizes(face_, 0, FT_UInt(pixels)) != 0)
            throw std::runtime_error(file + ": cannot be used as a font");
    }
    Face(const Face&) = delete;
    ~Face() { FT_Done_FreeType(library_); }

    Glyph draw(char32_t character) const {
        if (character == 0 || FT_Get_Char_Index(face_, character) == 0) return {};
        if (FT_Load_Char(face_, character, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO) != 0)
            throw std::runtime_error("a letter cannot be drawn");
        const auto& slot = *face_->glyph;
        Glyph glyph;
        glyph.left = std::max(slot.bitmap_left, 0);
        glyph.top = slot.bitmap_top;
        glyph.columns = int(slot.bitmap.width);
        glyph.rows = int(slot.bitmap.rows);
        glyph.width = std::max(int(slot.advance.x >> 6), glyph.left + glyph.columns);
        for (int row = 0; row < glyph.rows; ++row)
            for (int column = 0; column < glyph.columns; ++column)
                glyph.ink.push_back(slot.bitmap.buffer[row * slot.bitmap.pitch + column / 8] >> (7 - column % 8) & 1);
        return glyph;
    }

private:
    FT_Library library_ = nullptr;
    FT_Face face_ = nullptr;
};

std::string header(const std::string& face, int size, int style) {
    constexpr int kVersion = 2;
    std::string bytes(kBodyAt, '\0');
    bytes[0] = char(kVersion);
    bytes[1] = char(size);
    bytes[4] = char(style);
    return bytes.replace(kNameAt, face.size(), face);
}

std::string bitmapOf(const Glyph& glyph, int height, int ascent) {
    const auto rowBytes = std::size_t(glyph.width + 7) / 8;
    std::string bytes(rowBytes * std::size_t(height), '\0');
    for (int row = 0; row < glyph.rows; ++row)
        for (int column = 0; column < glyph.columns; ++column) {
            if (!glyph.ink[std::size_t(row * glyph.columns + column)]) continue;
            const int x = glyph.left + column, y = ascent - glyph.top + row;
            bytes[std::size_t(y) * rowBytes + std::size_t(x / 8)] |= char(0x80 >> x % 8);
        }
    return bytes;
}

std::string body(const std::vector<Glyph>& glyphs) {
    int ascent = 0, descent = 0;
    for (const auto& glyph : glyphs) {
        ascent = std::max(ascent, glyph.top);
        descent = std::max(descent, glyph.rows - glyph.top);
    }
    const int height = ascent + descent;
    std::string bytes = "CMFB";
    for (const int field : {1, 1, height, ascent, 1252 & 0xFF, 1252 >> 8, kFirstCode, kLastCode, kMissingCode, 0, 0, 0})
        bytes += char(field);
    for (const auto& glyph : glyphs) bytes += char(glyph.width);
    for (const auto& glyph : glyphs) bytes += bitmapOf(glyph, height, ascent);
    return bytes;
}

void convert(const std::vector<std::string>& arguments) {
    if (arguments.size() != 6) throw std::runtime_error("usage: convert FILE FACE SIZE STYLE PIXELS OUTPUT");
    const Face face(arguments[0], std::stoi(arguments[4]));
    const auto& name = arguments[1];
    const int size = std::stoi(arguments[2]), style = std::stoi(arguments[3]);
    if (name.size() > kLongestName || size < 1 || size > 255 || style < 0 || style > 3)
        throw std::runtime_error("the name, size or style is out of the range of the file format");
    std::vector<Glyph> glyphs;
    for (int code = kFirstCode; code <= kLastCode; ++code) glyphs.push_back(face.draw(characterOf(code)));
    std::ofstream output(arguments[5], std::ios::binary);
    output << header(name, size, style) << body(glyphs);
    if (!output.flush()) throw std::runtime_error(arguments[5] + ": cannot be written");
}

} // namespace

int main(int argc, char** argv) {
    try {
        convert({argv + 1, argv + argc});
        return EXIT_SUCCESS;
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return EXIT_FAILURE;
    }
}
