#pragma once
// What a painter draws, as text: one line for each shape with its pen and brush. Texts have no place, as that depends on
// the fonts of the machine.
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPolygonF>
#include <string>

namespace test {

class RecordingEngine final : public QPaintEngine {
public:
    RecordingEngine() : QPaintEngine(AllFeatures) {}
    std::string lines;

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& state) override {
        const auto changed = state.state();
        if (changed & DirtyPen) pen_ = shown(state.pen());
        if (changed & DirtyBrush) brush_ = shown(state.brush());
        if (changed & DirtyOpacity) opacity_ = state.opacity() < 1 ? QString(", opacity %1").arg(state.opacity()) : "";
        if (changed & DirtyTransform) origin_ = {state.transform().dx(), state.transform().dy()};
    }
    void drawRects(const QRectF* rects, int count) override {
        for (int i = 0; i < count; ++i) show("rectangle", shown(rects[i]));
    }
    void drawLines(const QLineF* drawn, int count) override {
        for (int i = 0; i < count; ++i) show("line", shown(drawn[i].p1()) + " to " + shown(drawn[i].p2()));
    }
    void drawEllipse(const QRectF& place) override { show("ellipse", shown(place)); }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
        QStringList corners;
        for (int i = 0; i < count; ++i) corners << shown(points[i]);
        show(mode == PolylineMode ? "lines" : "polygon", corners.join(", "));
    }
    void drawPath(const QPainterPath& path) override { show("path", shown(path.boundingRect())); }
    void drawPixmap(const QRectF& place, const QPixmap&, const QRectF&) override { show("picture", shown(place)); }
    void drawTiledPixmap(const QRectF& place, const QPixmap& tile, const QPointF&) override {
        show("tiles", shown(place) + QString(" of %1").arg(tile.width()));
    }
    void drawTextItem(const QPointF&, const QTextItem& item) override { show("text", item.text()); }

private:
    void show(const char* what, const QString& details) {
        const auto origin = origin_.isNull() ? QString() : QString(", from ") + shown(origin_);
        lines += (QString(what) + " " + details + pen_ + brush_ + opacity_ + origin).toStdString() + "\n";
    }
    static QString shown(double number) { return QString::number(std::round(number * 100) / 100); }
    static QString shown(const QPointF& point) { return shown(point.x()) + " " + shown(point.y()); }
    static QString shown(const QRectF& place) {
        return shown(place.topLeft()) + ", " + shown(place.width()) + " x " + shown(place.height());
    }
    static QString shown(const QPen& pen) {
        if (pen.style() == Qt::NoPen) return {};
        return QString(", pen %1 %2 %3").arg(pen.color().name()).arg(pen.widthF()).arg(int(pen.style()));
    }
    static QString shown(const QBrush& brush) {
        if (brush.style() == Qt::NoBrush) return {};
        return QString(", brush %1 %2").arg(brush.color().name()).arg(int(brush.style()));
    }

    QString pen_, brush_, opacity_;
    QPointF origin_;
};

/// Paint on it, then take its lines.
class RecordedPaint final : public QPaintDevice {
public:
    QPaintEngine* paintEngine() const override { return &engine_; }
    const std::string& lines() const { return engine_.lines; }
    void addTitle(const std::string& title) { engine_.lines += title + "\n"; }

protected:
    int metric(PaintDeviceMetric which) const override {
        switch (which) {
        case PdmWidth:
        case PdmHeight: return 2000;
        case PdmDevicePixelRatio: return 1;
        case PdmDevicePixelRatioScaled: return int(devicePixelRatioFScale());
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY: return 96;
        case PdmDepth: return 32;
        case PdmNumColors: return 1 << 24;
        default: return 1;
        }
    }

private:
    mutable RecordingEngine engine_;
};

} // namespace test
