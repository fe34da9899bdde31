#include "Apps/workbench/properties/metafile_painter.h"
#include "Apps/workbench/base/text.h"
#include "Host/metafiles/metafile.h"
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace workbench {

namespace {

using namespace host;

QColor colourOf(DrawnColour colour) { return QColor(QRgb(colour | 0xFF000000)); }

QPointF pointOf(const DrawnPoint& at) { return {at.x, at.y}; }

QPen penOf(const DrawnPen& pen) {
    // in the order of the styles
    static constexpr Qt::PenStyle kStyles[] = {Qt::SolidLine,   Qt::DashLine,       Qt::DotLine,
                                               Qt::DashDotLine, Qt::DashDotDotLine, Qt::NoPen};
    return {colourOf(pen.colour), pen.width, kStyles[int(pen.style)], Qt::RoundCap, Qt::RoundJoin};
}

QBrush brushOf(const DrawnBrush& brush) {
    static constexpr Qt::BrushStyle kHatches[] = {Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
                                                  Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    if (brush.style == DrawnBrush::Style::None) return Qt::NoBrush;
    const bool isHatch = brush.style == DrawnBrush::Style::Hatch;
    return {colourOf(brush.colour), isHatch ? kHatches[brush.hatch] : Qt::SolidPattern};
}

class MetafilePainter {
public:
    explicit MetafilePainter(QImage& image) : painter_(&image) {
        painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    }

    void operator()(const DrawnPath& drawn) {
        QPainterPath path;
        for (const auto& figure : drawn.figures) addFigure(path, figure);
        path.setFillRule(drawn.fillsWindings ? Qt::WindingFill : Qt::OddEvenFill);
        painter_.setPen(penOf(drawn.pen));
        painter_.setBrush(brushOf(drawn.brush));
        painter_.drawPath(path);
    }

    void operator()(const DrawnText& drawn) {
        const auto font = fontOf(drawn);
        const QFontMetricsF metrics(font);
        const auto shown = qt(drawn.text);
        double x = 0, y = 0;
        if (drawn.across != DrawnText::Across::Left) x = -metrics.horizontalAdvance(shown);
        if (drawn.across == DrawnText::Across::Centre) x /= 2;
        if (drawn.down == DrawnText::Down::Top) y = metrics.ascent();
        if (drawn.down == DrawnText::Down::Bottom) y = -metrics.descent();
        painter_.save();
        painter_.translate(pointOf(drawn.at));
        painter_.rotate(-drawn.angle);
        painter_.setFont(font);
        painter_.setPen(colourOf(drawn.colour));
        painter_.drawText(QPointF(x, y), shown);
        painter_.restore();
    }

    void operator()(const DrawnBitmap& drawn) {
        const auto whole = QImage::fromData(QByteArray::fromStdString(drawn.bmp), "BMP");
        const auto named = QRectF(drawn.left, drawn.top, drawn.width, drawn.height).normalized();
        const auto part = named.toAlignedRect() & whole.rect();
        if (part.isEmpty()) return;
        const QRectF to(pointOf(drawn.from), pointOf(drawn.to));
        const bool mirrorsAcross = (to.width() < 0) != (drawn.width < 0),
                   mirrorsDown = (to.height() < 0) != (drawn.height < 0);
        painter_.drawImage(to.normalized(), whole.copy(part).mirrored(mirrorsAcross, mirrorsDown));
    }

private:
    static void addFigure(QPainterPath& path, const DrawnPath::Figure& figure) {
        QPolygonF polygon;
        for (const auto& point : figure.points) polygon << pointOf(point);
        path.addPolygon(polygon);
        if (figure.isClosed && !polygon.isEmpty()) path.closeSubpath();
    }
    static QFont fontOf(const DrawnText& drawn) {
        constexpr double kUsualHeight = 12, kMostHeight = 1000;
        const double height = drawn.height > 0 ? std::clamp(drawn.height, 1.0, kMostHeight) : kUsualHeight;
        QFont font(qt(drawn.face));
        font.setPixelSize(int(height));
        if (drawn.isCellHeight) {
            const double cell = std::max(1.0, QFontMetricsF(font).height());
            font.setPixelSize(int(std::clamp(height * height / cell, 1.0, kMostHeight)));
        }
        font.setBold(drawn.isBold);
        font.setItalic(drawn.isItalic);
        font.setUnderline(drawn.isUnderlined);
        return font;
    }

    QPainter painter_;
};

} // namespace

QImage paintedMetafile(std::string_view bytes) {
    const auto metafile = readMetafile(bytes);
    if (!metafile) return {};
    QImage image(QSizeF(metafile->width, metafile->height).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) return {};
    image.fill(Qt::transparent);
    MetafilePainter painter(image);
    for (const auto& each : metafile->drawn) std::visit(painter, each);
    return image;
}

} // namespace workbench
