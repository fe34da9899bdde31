#pragma once
// The drawing of a Windows metafile (.wmf) or an enhanced one (.emf), in pixels of a picture at 96 dots per inch.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace host {

/// Y grows downwards. Finite and at most kMostDistance from the origin.
struct DrawnPoint {
    double x = 0, y = 0;
};
inline constexpr double kMostDistance = 1e5;

/// Red, green and blue, the highest byte first.
using DrawnColour = std::uint32_t;

struct DrawnPen {
    enum class Style { Solid, Dash, Dot, DashDot, DashDotDot, None };
    Style style = Style::Solid;
    double width = 1; ///< at least 1
    DrawnColour colour = 0;
};

struct DrawnBrush {
    enum class Style { Solid, Hatch, None };
    Style style = Style::Solid;
    DrawnColour colour = 0xFFFFFF;
    int hatch = 0; ///< of a hatch: horizontal, vertical, falling, rising, cross, diagonal cross
};

/// Lines one after another, and the area within them. Curves are lines already.
struct DrawnPath {
    struct Figure {
        std::vector<DrawnPoint> points;
        bool isClosed = false;
    };
    std::vector<Figure> figures;
    DrawnPen pen;
    DrawnBrush brush;
    bool fillsWindings = false; ///< else each second area
};

struct DrawnText {
    enum class Across { Left, Centre, Right };
    enum class Down { Top, Baseline, Bottom };
    DrawnPoint at;
    std::string text; ///< UTF-8; a long one is cut off
    std::string face; ///< UTF-8
    double height = 0;
    bool isCellHeight = false; ///< else that of the characters
    double angle = 0;          ///< degrees against the clock
    bool isBold = false, isItalic = false, isUnderlined = false;
    Across across = Across::Left;
    Down down = Down::Top;
    DrawnColour colour = 0;
};

/// A part of a bitmap, stretched between two corners; they are exchanged where it is mirrored.
struct DrawnBitmap {
    DrawnPoint from, to;
    double left = 0, top = 0, width = 0, height = 0; ///< the part
    std::string bmp;                                 ///< as a file; may be invalid
};

using Drawn = std::variant<DrawnPath, DrawnText, DrawnBitmap>;

struct Metafile {
    double width = 0, height = 0; ///< at least 1, at most kLargestMetafile
    std::vector<Drawn> drawn;
};
inline constexpr double kLargestMetafile = 4096;

/// All points of one drawing. A file with more is drawn up to there.
inline constexpr std::size_t kMostMetafilePoints = 250'000;

/// Reads the records of a metafile, up to the first whose length is wrong. Skips those without an effect on a picture.
/// Returns nothing for other bytes, and for a metafile without a size.
std::optional<Metafile> readMetafile(std::string_view bytes);

} // namespace host
