#pragma once
#include <QImage>
#include <QPainter>
#include <QWidget>

namespace introduction {

/// The size of a picture as shown; the file has twice as many pixels for high-resolution screens.
inline constexpr int kWidth = 480, kHeight = 320, kSharpness = 2;

inline const QColor kDesk("#dfe7ef"), kInk("#27313b"), kFaint("#66727e"), kLine("#9aa6b2"), kPaper("#ffffff"),
    kAccent("#2a6fc9");

/// A picture being drawn, in the units of its size as shown.
class Slide {
public:
    Slide();

    QPainter& painter() { return painter_; }
    /// Draws the widget, or a part of it, in this place.
    void put(QWidget& widget, const QRectF& place, const QRect& part = {});
    /// Draws the whole widget with a line around it.
    void putFramed(QWidget& widget, const QRectF& place);
    void panel(const QRectF& place, const QColor& fill = kPaper);
    void write(const QRectF& place, const QString& text, int pixels, const QColor& colour = kInk, bool bold = false,
               int alignment = Qt::AlignLeft | Qt::AlignVCenter);
    /// Draws a generic window and returns the place inside.
    QRectF window(const QRectF& place, const QString& title);
    QImage finished();

private:
    QImage image_;
    QPainter painter_;
};

} // namespace introduction
