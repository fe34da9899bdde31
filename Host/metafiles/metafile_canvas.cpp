#include "Host/metafiles/metafile_canvas.h"
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <numbers>

namespace host {

namespace {

using std::numbers::pi;

constexpr std::size_t kMostSaved = 256, kMostPixels = 64 * 1024 * 1024, kMostTextBytes = 4096;
constexpr int kCirclePoints = 72, kCurvePoints = 12;

double bounded(double value) { return std::isfinite(value) ? std::clamp(value, -kMostDistance, kMostDistance) : 0; }

DrawnPoint middleOf(const LogicalBox& box) { return {(box.left + box.right) / 2, (box.top + box.bottom) / 2}; }

/// On the ellipse within the box, where the ray to a point crosses it.
double angleOf(const LogicalBox& box, DrawnPoint point) {
    const auto middle = middleOf(box);
    const double across = box.right - box.left, down = box.bottom - box.top;
    if (across == 0 || down == 0) return 0;
    return std::atan2((point.y - middle.y) / down, (point.x - middle.x) / across);
}

DrawnPoint curvePoint(const DrawnPoint* p, double t) {
    const double s = 1 - t, a = s * s * s, b = 3 * s * s * t, c = 3 * s * t * t, d = t * t * t;
    return {a * p[0].x + b * p[1].x + c * p[2].x + d * p[3].x, a * p[0].y + b * p[1].y + c * p[2].y + d * p[3].y};
}

MetafileCanvas::Points cornersOf(const LogicalBox& box) {
    return {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}};
}

bool has(unsigned align, TextAlign bits) { return (align & unsigned(bits)) == unsigned(bits); }

} // namespace

// ---- the context ----------------------------------------------------------------------------------------------------

void MetafileCanvas::save() {
    if (saved_.size() < kMostSaved) saved_.push_back(context);
}

void MetafileCanvas::restore(std::int32_t which) {
    const auto count = std::int64_t(saved_.size());
    const auto index = which < 0 ? count + which : std::int64_t(which) - 1;
    if (index < 0 || index >= count) return;
    context = saved_[std::size_t(index)];
    saved_.resize(std::size_t(index));
}

void MetafileCanvas::select(const MetafileObject& object) {
    if (const auto* pen = std::get_if<DrawnPen>(&object)) context.pen = *pen;
    if (const auto* brush = std::get_if<DrawnBrush>(&object)) context.brush = *brush;
    if (const auto* font = std::get_if<LogicalFont>(&object)) context.font = *font;
}

// ---- places ---------------------------------------------------------------------------------------------------------

DrawnPoint MetafileCanvas::mapped(DrawnPoint logical) const {
    const auto at = context.mapping.whole().of(logical);
    return {bounded(at.x), bounded(at.y)};
}

MetafileCanvas::Figure MetafileCanvas::mapped(const Points& points, bool isClosed) const {
    const auto transform = context.mapping.whole();
    Figure figure{{}, isClosed};
    figure.points.reserve(points.size());
    for (const auto& point : points) {
        const auto at = transform.of(point);
        figure.points.push_back({bounded(at.x), bounded(at.y)});
    }
    return figure;
}

double MetafileCanvas::widthOf(double logical) const {
    const auto whole = context.mapping.whole();
    return bounded(std::abs(logical) * std::sqrt(std::abs(whole.a * whole.d - whole.b * whole.c)));
}

DrawnPen MetafileCanvas::shownPen() const {
    auto pen = context.pen;
    pen.width = std::max(1.0, widthOf(pen.width));
    return pen;
}

bool MetafileCanvas::turnsClockwise() const {
    const auto whole = context.mapping.whole();
    return context.drawsClockwise != (whole.a * whole.d - whole.b * whole.c < 0);
}

// ---- lines and areas ------------------------------------------------------------------------------------------------

void MetafileCanvas::add(DrawnPath path) {
    for (const auto& figure : path.figures) points_ += figure.points.size();
    drawn_.emplace_back(std::move(path));
}

void MetafileCanvas::draw(std::vector<Figure> figures, bool fills) {
    continues_ = false;
    if (collects_) {
        for (const auto& figure : figures) points_ += figure.points.size();
        std::move(figures.begin(), figures.end(), std::back_inserter(path_));
        return;
    }
    DrawnPath path{std::move(figures), shownPen(), context.brush, context.fillsWindings};
    if (!fills) path.brush.style = DrawnBrush::Style::None;
    add(std::move(path));
}

void MetafileCanvas::moveTo(DrawnPoint at) {
    context.position = at;
    continues_ = false;
}

void MetafileCanvas::lineTo(DrawnPoint at) { lines({at}, true); }

/// Lines from the position extend the figure that ended there.
void MetafileCanvas::lines(const Points& points, bool fromPosition) {
    if (points.empty()) return;
    if (!fromPosition) return draw({mapped(points, false)}, false);
    Points all{context.position};
    all.insert(all.end(), points.begin(), points.end());
    context.position = points.back();
    auto figure = mapped(all, false);
    if (!collects_ || !continues_ || path_.empty()) {
        draw({std::move(figure)}, false);
    } else {
        points_ += figure.points.size();
        path_.back().points.insert(path_.back().points.end(), figure.points.begin() + 1, figure.points.end());
    }
    continues_ = collects_;
}

void MetafileCanvas::beziers(const Points& points, bool fromPosition) {
    Points nodes = points;
    if (fromPosition) nodes.insert(nodes.begin(), context.position);
    Points curve;
    for (std::size_t i = 0; i + 3 < nodes.size(); i += 3)
        for (int step = 1; step <= kCurvePoints; ++step)
            curve.push_back(curvePoint(&nodes[i], double(step) / kCurvePoints));
    if (curve.empty()) return;
    if (!fromPosition) curve.insert(curve.begin(), nodes.front());
    lines(curve, fromPosition);
}

void MetafileCanvas::polygons(const std::vector<Points>& polygons) {
    std::vector<Figure> figures;
    for (const auto& points : polygons) figures.push_back(mapped(points, true));
    draw(std::move(figures), true);
}

void MetafileCanvas::openLines(const std::vector<Points>& lines) {
    std::vector<Figure> figures;
    for (const auto& points : lines) figures.push_back(mapped(points, false));
    draw(std::move(figures), false);
}

void MetafileCanvas::rectangle(const LogicalBox& box) { polygons({cornersOf(box)}); }

void MetafileCanvas::roundRectangle(const LogicalBox& box, double width, double height) {
    const double across = std::min(std::abs(width), std::abs(box.right - box.left)),
                 down = std::min(std::abs(height), std::abs(box.bottom - box.top));
    const double left = std::min(box.left, box.right), top = std::min(box.top, box.bottom),
                 right = std::max(box.left, box.right), bottom = std::max(box.top, box.bottom);
    Points points;
    const auto corner = [&](double x, double y, double from) {
        const auto part = arcPoints({x, y, x + across, y + down}, from, pi / 2);
        points.insert(points.end(), part.begin(), part.end());
    };
    corner(right - across, bottom - down, 0);
    corner(left, bottom - down, pi / 2);
    corner(left, top, pi);
    corner(right - across, top, 3 * pi / 2);
    polygons({points});
}

void MetafileCanvas::ellipse(const LogicalBox& box) { polygons({arcPoints(box, 0, 2 * pi)}); }

MetafileCanvas::Points MetafileCanvas::arcPoints(const LogicalBox& box, double from, double sweep) const {
    const auto middle = middleOf(box);
    const double across = (box.right - box.left) / 2, down = (box.bottom - box.top) / 2;
    const int steps = std::max(1, int(std::ceil(std::abs(sweep) / (2 * pi) * kCirclePoints)));
    Points points;
    for (int step = 0; step <= steps; ++step) {
        const double angle = from + sweep * step / steps;
        points.push_back({middle.x + across * std::cos(angle), middle.y + down * std::sin(angle)});
    }
    return points;
}

/// Equal rays make a whole ellipse.
MetafileCanvas::Points MetafileCanvas::arcPoints(const LogicalBox& box, DrawnPoint from, DrawnPoint to) const {
    const double begin = angleOf(box, from);
    double sweep = angleOf(box, to) - begin;
    if (turnsClockwise() && sweep <= 0) sweep += 2 * pi;
    if (!turnsClockwise() && sweep >= 0) sweep -= 2 * pi;
    return arcPoints(box, begin, sweep);
}

void MetafileCanvas::arc(const LogicalBox& box, DrawnPoint from, DrawnPoint to, ArcKind kind) {
    auto points = arcPoints(box, from, to);
    if (kind == ArcKind::Open) return lines(points);
    if (kind == ArcKind::Pie) points.push_back(middleOf(box));
    polygons({points});
}

void MetafileCanvas::arcTo(const LogicalBox& box, DrawnPoint from, DrawnPoint to) {
    lines(arcPoints(box, from, to), true);
}

void MetafileCanvas::fill(const LogicalBox& box, const DrawnBrush& brush) {
    DrawnPath path{{mapped(cornersOf(box), true)}, {}, brush};
    path.pen.style = DrawnPen::Style::None;
    add(std::move(path));
}

// ---- paths ----------------------------------------------------------------------------------------------------------

void MetafileCanvas::beginPath() {
    path_.clear();
    collects_ = true;
    continues_ = false;
}

void MetafileCanvas::closeFigure() {
    if (collects_ && !path_.empty()) path_.back().isClosed = true;
    continues_ = false;
}

void MetafileCanvas::drawPath(PathUse use) {
    collects_ = false;
    DrawnPath path{std::move(path_), shownPen(), context.brush, context.fillsWindings};
    path_.clear();
    if (use == PathUse::Fill) path.pen.style = DrawnPen::Style::None;
    if (use == PathUse::Stroke) path.brush.style = DrawnBrush::Style::None;
    drawn_.emplace_back(std::move(path)); // its points were counted when they were collected
}

// ---- texts and bitmaps ----------------------------------------------------------------------------------------------

void MetafileCanvas::text(DrawnPoint at, std::string text) {
    const auto align = context.textAlign;
    const auto& font = context.font;
    DrawnText drawn;
    drawn.at = mapped(has(align, TextAlign::UpdatesPosition) ? context.position : at);
    drawn.text = std::move(text);
    if (drawn.text.size() > kMostTextBytes) drawn.text.resize(kMostTextBytes);
    drawn.face = font.face;
    drawn.height = widthOf(font.height);
    drawn.isCellHeight = font.height > 0;
    drawn.angle = font.angle;
    drawn.isBold = font.isBold;
    drawn.isItalic = font.isItalic;
    drawn.isUnderlined = font.isUnderlined;
    drawn.colour = context.textColour;
    if (has(align, TextAlign::Centre))
        drawn.across = DrawnText::Across::Centre;
    else if (has(align, TextAlign::Right))
        drawn.across = DrawnText::Across::Right;
    if (has(align, TextAlign::Baseline))
        drawn.down = DrawnText::Down::Baseline;
    else if (has(align, TextAlign::Bottom))
        drawn.down = DrawnText::Down::Bottom;
    ++points_;
    drawn_.emplace_back(std::move(drawn));
}

void MetafileCanvas::bitmap(const LogicalBox& to, const LogicalBox& part, const DibParts& dib, bool isFromBottom) {
    const auto size = sizeOfDib(dib);
    if (!size || size->pixels() > kMostPixels - pixels_) return;
    pixels_ += size->pixels();
    const bool isTurned = isFromBottom && !size->isTopDown;
    const double top = isTurned ? size->height - part.bottom : part.top;
    drawn_.emplace_back(DrawnBitmap{mapped({to.left, to.top}), mapped({to.right, to.bottom}), part.left, top,
                                    part.right - part.left, part.bottom - part.top, bmpOf(dib)});
    ++points_;
}

} // namespace host
