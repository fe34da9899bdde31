#pragma once
// The device context of a metafile: what the records of both formats set, and the drawing that they make.
#include "Host/metafiles/dib.h"
#include "Host/metafiles/mapping.h"
#include "Host/metafiles/metafile.h"
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace host {

/// As in the file: its sizes are logical.
struct LogicalFont {
    double height = 0; ///< negative for that of the characters
    double angle = 0;
    bool isBold = false, isItalic = false, isUnderlined = false;
    std::string face;
};

/// Another kind of object, such as a palette, has no effect.
using MetafileObject = std::variant<std::monostate, DrawnPen, DrawnBrush, LogicalFont>;

enum class TextAlign { UpdatesPosition = 1, Right = 2, Centre = 6, Bottom = 8, Baseline = 24 };

enum class ArcKind { Open, Chord, Pie };

struct LogicalBox {
    double left = 0, top = 0, right = 0, bottom = 0;
};

/// What saving a context keeps.
struct MetafileContext {
    Mapping mapping;
    DrawnPen pen; ///< its width is logical
    DrawnBrush brush;
    LogicalFont font;
    DrawnColour textColour = 0;
    bool fillsWindings = false, drawsClockwise = false;
    unsigned textAlign = 0;
    DrawnPoint position;
};

/// A path is collected between two records instead of being drawn.
class MetafileCanvas {
public:
    using Points = std::vector<DrawnPoint>;
    MetafileContext context;

    void save();
    /// Back to an earlier context: counted from the present one if negative.
    void restore(std::int32_t which);
    void select(const MetafileObject& object);

    void moveTo(DrawnPoint at);
    void lineTo(DrawnPoint at);
    void lines(const Points& points, bool fromPosition = false);
    void beziers(const Points& points, bool fromPosition);
    void polygons(const std::vector<Points>& polygons);
    void openLines(const std::vector<Points>& lines);
    void rectangle(const LogicalBox& box);
    void roundRectangle(const LogicalBox& box, double width, double height);
    void ellipse(const LogicalBox& box);
    /// Between the rays through two points.
    void arc(const LogicalBox& box, DrawnPoint from, DrawnPoint to, ArcKind kind);
    /// Connects an arc with the position.
    void arcTo(const LogicalBox& box, DrawnPoint from, DrawnPoint to);
    void fill(const LogicalBox& box, const DrawnBrush& brush);
    void text(DrawnPoint at, std::string text);
    /// The part is counted from the lowest line if the bitmap begins with that one. Skips a bitmap that is larger than
    /// its bits allow.
    void bitmap(const LogicalBox& to, const LogicalBox& part, const DibParts& dib, bool isFromBottom);

    void beginPath();
    void endPath() { collects_ = false; }
    void closeFigure();
    enum class PathUse { Fill, Stroke, Both };
    void drawPath(PathUse use);

    bool isFull() const { return points_ >= kMostMetafilePoints; }
    std::vector<Drawn> take() { return std::move(drawn_); }

private:
    using Figure = DrawnPath::Figure;
    DrawnPoint mapped(DrawnPoint logical) const;
    Figure mapped(const Points& points, bool isClosed) const;
    double widthOf(double logical) const;
    DrawnPen shownPen() const;
    bool turnsClockwise() const;
    void draw(std::vector<Figure> figures, bool fills);
    void add(DrawnPath path);
    Points arcPoints(const LogicalBox& box, double from, double sweep) const;
    Points arcPoints(const LogicalBox& box, DrawnPoint from, DrawnPoint to) const;

    std::vector<MetafileContext> saved_;
    std::vector<Drawn> drawn_;
    std::vector<Figure> path_;
    bool collects_ = false, continues_ = false;
    std::size_t points_ = 0, pixels_ = 0;
};

} // namespace host
