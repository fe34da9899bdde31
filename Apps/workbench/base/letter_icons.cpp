#include "Apps/workbench/base/letter_icons.h"
#include "Apps/workbench/base/painted_icon.h"
#include <QColor>
#include <array>

namespace workbench {

namespace {

struct Look {
    vbide::vbext_ComponentType type;
    char letter;
    const char* colour;
};
constexpr Look kProject{{}, 'P', "#2e7d32"}, kOther{{}, 'D', "#7b7d82"};
constexpr std::array kLooks{
    Look{vbide::vbext_ct_VBForm, 'F', "#2a6fc9"},      Look{vbide::vbext_ct_VBMDIForm, 'F', "#2a6fc9"},
    Look{vbide::vbext_ct_StdModule, 'M', "#a35a1c"},   Look{vbide::vbext_ct_ClassModule, 'C', "#7a3e9d"},
    Look{vbide::vbext_ct_UserControl, 'U', "#1d7f86"}, Look{vbide::vbext_ct_PropPage, 'P', "#1d7f86"},
};

/// A letter on a rounded square.
class LetterIcon final : public PaintedIcon {
public:
    explicit LetterIcon(const Look& look) : look_(look) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode, QIcon::State) override {
        const QRectF square = QRectF(place).adjusted(1, 1, -1, -1);
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(look_.colour));
        painter->drawRoundedRect(square, square.width() * 0.2, square.width() * 0.2);
        auto font = painter->font();
        font.setBold(true);
        font.setPixelSize(std::max(1, int(square.height() * 0.75)));
        painter->setFont(font);
        painter->setPen(Qt::white);
        painter->drawText(square, Qt::AlignCenter, QString(look_.letter));
    }
    QIconEngine* clone() const override { return new LetterIcon(*this); }

private:
    Look look_;
};

} // namespace

QIcon projectIcon() { return QIcon(new LetterIcon(kProject)); }

QIcon componentIcon(vbide::vbext_ComponentType type) {
    for (const auto& look : kLooks)
        if (look.type == type) return QIcon(new LetterIcon(look));
    return QIcon(new LetterIcon(kOther));
}

} // namespace workbench
