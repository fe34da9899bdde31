#include "Apps/workbench/properties/form_colours.h"
#include "Apps/workbench/base/theme.h"
#include <QPainter>
#include <QRegularExpression>
#include <array>

namespace workbench {

namespace {

constexpr std::uint32_t kSystemColour = 0x80000000, kSystemNumber = 0xffff;
constexpr std::uint32_t kBeyondColours = 0xff000000;
constexpr std::uint32_t kByte = 0xff;

struct SystemColour {
    const char* name;
    QRgb shown;
};
/// Indexed by number.
constexpr std::array kSystemColours{
    SystemColour{"Scroll Bars", 0xffd4d0c8},
    SystemColour{"Desktop", 0xff3a6ea5},
    SystemColour{"Active Title Bar", 0xff0a246a},
    SystemColour{"Inactive Title Bar", 0xff808080},
    SystemColour{"Menu Bar", 0xffd4d0c8},
    SystemColour{"Window Background", 0xffffffff},
    SystemColour{"Window Frame", 0xff000000},
    SystemColour{"Menu Text", 0xff000000},
    SystemColour{"Window Text", 0xff000000},
    SystemColour{"Active Title Bar Text", 0xffffffff},
    SystemColour{"Active Border", 0xffd4d0c8},
    SystemColour{"Inactive Border", 0xffd4d0c8},
    SystemColour{"Application Workspace", 0xff808080},
    SystemColour{"Highlight", 0xff0a246a},
    SystemColour{"Highlight Text", 0xffffffff},
    SystemColour{"Button Face", 0xffd4d0c8},
    SystemColour{"Button Shadow", 0xff808080},
    SystemColour{"Disabled Text", 0xff808080},
    SystemColour{"Button Text", 0xff000000},
    SystemColour{"Inactive Title Bar Text", 0xffd4d0c8},
    SystemColour{"Button Highlight", 0xffffffff},
    SystemColour{"Button Dark Shadow", 0xff404040},
    SystemColour{"Button Light Shadow", 0xffd4d0c8},
    SystemColour{"ToolTip Text", 0xff000000},
    SystemColour{"ToolTip", 0xffffffe1},
};

struct PaletteColour {
    const char* name;
    std::int32_t value;
};
constexpr std::array kPalette{
    PaletteColour{"Black", 0x000000},      PaletteColour{"Dark Grey", 0x808080}, PaletteColour{"Light Grey", 0xc0c0c0},
    PaletteColour{"White", 0xffffff},      PaletteColour{"Dark Red", 0x000080},  PaletteColour{"Red", 0x0000ff},
    PaletteColour{"Dark Green", 0x008000}, PaletteColour{"Green", 0x00ff00},     PaletteColour{"Dark Blue", 0x800000},
    PaletteColour{"Blue", 0xff0000},       PaletteColour{"Olive", 0x008080},     PaletteColour{"Yellow", 0x00ffff},
    PaletteColour{"Teal", 0x808000},       PaletteColour{"Cyan", 0xffff00},      PaletteColour{"Purple", 0x800080},
    PaletteColour{"Magenta", 0xff00ff},
};

std::vector<NamedColour> allNamedColours() {
    std::vector<NamedColour> all;
    for (std::size_t i = 0; i < kSystemColours.size(); ++i)
        all.push_back({kSystemColours.at(i).name, std::int32_t(kSystemColour | std::uint32_t(i))});
    for (const auto& colour : kPalette) all.push_back({colour.name, colour.value});
    return all;
}

} // namespace

QColor formColour(std::int32_t value) {
    const auto bits = std::uint32_t(value);
    if ((bits & kSystemColour) == 0) return {int(bits & kByte), int(bits >> 8 & kByte), int(bits >> 16 & kByte)};
    const auto number = bits & kSystemNumber;
    return QColor::fromRgb(number < kSystemColours.size() ? kSystemColours.at(number).shown : 0xff000000);
}

QString formColourText(std::int32_t value) {
    return QString("&H%1&").arg(std::uint32_t(value), 8, 16, QChar('0')).toUpper();
}

std::optional<std::int32_t> formColourOf(const QString& text) {
    static const QRegularExpression kHexadecimal("^&H([0-9A-F]{1,8})&?$", QRegularExpression::CaseInsensitiveOption);
    const auto match = kHexadecimal.match(text.trimmed());
    bool good = match.hasMatch();
    const auto bits = good ? match.captured(1).toUInt(&good, 16) : std::uint32_t(text.trimmed().toInt(&good));
    const bool isColour = (bits & kBeyondColours) == 0;
    const bool isSystem = bits >= kSystemColour && bits - kSystemColour < kSystemColours.size();
    if (!good || !(isColour || isSystem)) return std::nullopt;
    return std::int32_t(bits);
}

QPixmap colourSwatch(std::int32_t value, const QSize& size) {
    QPixmap picture(size);
    picture.fill(formColour(value));
    QPainter painter(&picture);
    painter.setPen(edgeColour(currentTheme()));
    painter.drawRect(0, 0, size.width() - 1, size.height() - 1);
    return picture;
}

const std::vector<NamedColour>& namedColours() {
    static const auto all = allNamedColours();
    return all;
}

} // namespace workbench
