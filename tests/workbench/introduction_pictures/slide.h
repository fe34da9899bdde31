#pragma once
#include <QImage>
#include <QPainter>
#include <QWidget>

namespace introduction {

/// Of a picture as it is shown; the file has twice as many pixels, for sharp screens.
inline constexpr int kWidth = 480, kHeight = 320, kSharpness = 2;

inline const QColor kDesk("#dfe7ef"), kInk("#27313b"), kFaint("#66727e"), kLine("#9aa6b2"), kPaper("#ffffff"),
    kAccent("#2a6fc9");

/// A picture under work, measured as it is shown.
class Slide {
public:
    Slide();

    QPainter& painter() { return painter_; }
    /// The widget, or a part of it, over this place.
    void put(QWidget& widget, const QRectF& place, const QRect& part = {});
    /// The whole widget with a line round it.
    void putFramed(QWidget& widget, const QRectF& place);
    void panel(const QRectF& place, const QColor& fill = kPaper);
    void write(const QRectF& place, const QString& text, int pixels, const QColor& colour = kInk, bool bold = false,
               int alignment = Qt::AlignLeft | Qt::AlignVCenter);
    /// A window of no particular desktop; gives the place inside.
    QRectF window(const QRectF& place, const QString& title);
    QImage finished();

private:
    QImage image_;
    QPainter painter_;
};

} // namespace introduction
