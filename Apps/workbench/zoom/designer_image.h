#pragma once
// The picture of a designer, from which the zoom window copies.
#include "Add-in/platform/events.h"
#include <QObject>
#include <QPixmap>
#include <QTimer>
#include <cstdint>

namespace workbench {

class FormCanvas;

/// Lives as long as its canvas. Drawn again once per turn of Qt's loop after the designer's content, selection or
/// outline changed, never because something is painted.
class DesignerImage final : public QObject {
public:
    explicit DesignerImage(FormCanvas& canvas);

    FormCanvas& canvas() const { return canvas_; }
    /// At the pixel ratio that was asked for last.
    const QPixmap& pixmap() const { return pixmap_; }
    /// Draws at this pixel ratio if the present picture has another one or none was drawn yet.
    void useRatio(double devicePixelRatio);
    /// Incremented whenever the picture is drawn.
    std::int64_t revision() const { return revision_; }
    /// Called after the designer changed and the picture was drawn again.
    fernwick::Event<> drawn;

private:
    void draw();

    FormCanvas& canvas_;
    double ratio_ = 0;
    QPixmap pixmap_;
    std::int64_t revision_ = 0;
    QTimer soon_;
    fernwick::Subscription watch_;
};

} // namespace workbench
