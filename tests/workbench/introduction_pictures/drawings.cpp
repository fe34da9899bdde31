#include "tests/workbench/introduction_pictures/pictures.h"
#include "tests/workbench/introduction_pictures/slide.h"
#include <QFile>
#include <QPainterPath>
#include <QTextDocument>

namespace introduction {

namespace {

constexpr auto kInstallation = FERNWICK_SOURCE_DIR "/installation";
constexpr int kText = 13, kSmall = 11;

/// The program's icon: a handheld with a fern on its screen.
void drawIcon(QPainter& painter, const QRectF& place) {
    constexpr qreal kGrid = 64; // that of packaging/fernwick-workbench.svg
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(place.width() / kGrid, place.height() / kGrid);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kAccent);
    painter.drawRoundedRect(QRectF(12, 3, 40, 58), 6, 6);
    painter.setBrush(QColor("#f4f8f4"));
    painter.drawRoundedRect(QRectF(17, 10, 30, 38), 2, 2);
    painter.drawEllipse(QPointF(32, 54.5), 3, 3);
    QPainterPath fern(QPointF(25, 45));
    fern.cubicTo({28, 36}, {33, 25}, {40, 14});
    const QPointF nodes[] = {{28, 38}, {30.5, 33}, {33.5, 27}};
    for (const auto& node : nodes) {
        fern.moveTo(node);
        fern.quadTo(node + QPointF(-6, -1), node + QPointF(-7, -6));
        fern.moveTo(node);
        fern.quadTo(node + QPointF(6, 2), node + QPointF(9, -1));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor("#2e7d32"), 2.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawPath(fern);
    painter.restore();
}

struct Tavlet {
    const char* name;
    const char* sign;
};

/// A tile with a symbol for the control, and the small "i" of a device control in its corner.
void drawTavlet(Slide& slide, const QRectF& tile, const Tavlet& tavlet) {
    constexpr int kSign = 26, kSignHeight = 44, kMark = 15;
    slide.panel(tile);
    slide.write({tile.x(), tile.y(), tile.width(), kSignHeight}, tavlet.sign, kSign, kAccent, true, Qt::AlignCenter);
    slide.write({tile.x(), tile.y() + kSignHeight, tile.width(), tile.height() - kSignHeight}, tavlet.name, kSmall,
                kInk, false, Qt::AlignCenter);
    slide.write(tile.adjusted(0, 3, -8, 0), "i", kMark, QColor("#c8641e"), true, Qt::AlignRight | Qt::AlignTop);
}

} // namespace

QImage tavlets() {
    static constexpr Tavlet kShown[] = {{"QLLabel", "A"},         {"QLTextBox", "ab|"},        {"QLButton", "\u25AD"},
                                        {"QLCheckBox", "\u2611"}, {"QLRadioButton", "\u25C9"}, {"QLListBox", "\u2630"},
                                        {"QLComboBox", "\u25BE"}, {"QLGrid", "\u25A6"},        {"QLPicture", "\u2600"},
                                        {"QLSound", "\u266B"},    {"QLTimer", "\u25F7"},       {"QLMenu", "\u2261"}};
    constexpr int kColumns = 4;
    constexpr qreal kLeft = 24, kTop = 46, kTileWidth = 102, kTileHeight = 72, kGap = 8;
    Slide slide;
    int at = 0;
    for (const auto& tavlet : kShown) {
        const QPointF corner(kLeft + (at % kColumns) * (kTileWidth + kGap),
                             kTop + (at / kColumns) * (kTileHeight + kGap));
        drawTavlet(slide, QRectF(corner, QSizeF(kTileWidth, kTileHeight)), tavlet);
        ++at;
    }
    return slide.finished();
}

/// The entry that the installation adds to the desktop's menu of programs.
QImage startMenu() {
    constexpr QRectF kMenu(40, 40, 400, 240), kEntry(52, 124, 376, 64), kIcon(62, 132, 48, 48);
    constexpr int kName = 16;
    Slide slide;
    slide.panel(kMenu);
    slide.write({56, 52, 300, 24}, "Development", kText, kFaint, true);
    slide.panel(kEntry, QColor("#e4eefb"));
    drawIcon(slide.painter(), kIcon);
    slide.write({122, 132, 300, 24}, "Fernwick Workbench", kName, kInk, true);
    slide.write({122, 156, 300, 20}, "Development environment", kText, kFaint);
    for (const qreal y : {92.0, 208.0, 240.0}) {
        slide.painter().setPen(Qt::NoPen);
        slide.painter().setBrush(kDesk);
        slide.painter().drawRoundedRect(QRectF(62, y, 20, 20), 4, 4);
        slide.painter().drawRoundedRect(QRectF(94, y + 5, y == 208 ? 150 : 110, 10), 5, 5);
    }
    return slide.finished();
}

/// The User's Guide in a browser.
QImage website() {
    constexpr QRectF kBrowser(20, 16, 440, 320), kAddress(30, 50, 420, 24);
    Slide slide;
    const auto inside = slide.window(kBrowser, "Fernwick User's Guide").adjusted(10, 44, -10, -10);
    slide.panel(kAddress, QColor("#f4f4f4"));
    slide.write(kAddress.adjusted(10, 0, 0, 0), "Quinloft_Users_Guide.html", kSmall, kFaint);
    QFile file(QString(kInstallation) + "/VB Toolkit/doc/Quinloft_Users_Guide.html");
    if (!file.open(QIODevice::ReadOnly)) return {};
    QTextDocument page;
    QFont font;
    font.setPixelSize(kSmall);
    page.setDefaultFont(font);
    page.setHtml(QString::fromUtf8(file.readAll()));
    page.setTextWidth(inside.width());
    slide.painter().translate(inside.topLeft());
    page.drawContents(&slide.painter(), QRectF({0, 0}, inside.size()));
    return slide.finished();
}

} // namespace introduction
