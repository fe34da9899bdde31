#pragma once
#include <QIconEngine>
#include <QPainter>

namespace workbench {

/// An icon that is painted at the resolution of each screen.
class PaintedIcon : public QIconEngine {
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
};

} // namespace workbench
