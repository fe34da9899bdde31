#include "Apps/workbench/window/start_icon.h"
#include "Apps/workbench/base/painted_icon.h"
#include <QPolygonF>

namespace workbench {

namespace {

class StartIcon final : public PaintedIcon {
public:
    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(mode == QIcon::Disabled ? "#8f8f8f" : "#3a9c45"));
        const QRectF at(place);
        painter->drawPolygon(QPolygonF{{at.x() + at.width() * 0.2, at.y() + at.height() * 0.1},
                                       {at.x() + at.width() * 0.9, at.y() + at.height() * 0.5},
                                       {at.x() + at.width() * 0.2, at.y() + at.height() * 0.9}});
    }
    QIconEngine* clone() const override { return new StartIcon(*this); }
};

} // namespace

QIcon startIcon() { return QIcon(new StartIcon); }

} // namespace workbench
