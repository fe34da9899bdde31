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

/// As &H00BBGGRR, in rows of eight.
constexpr std::array<std::int32_t, kPaletteColours> kPalette{
    0xffffff, 0xc0c0ff, 0xc0e0ff, 0xc0ffff, 0xc0ffc0, 0xffffc0, 0xffc0c0, 0xffc0ff, //
    0xe0e0e0, 0x8080ff, 0x80c0ff, 0x80ffff, 0x80ff80, 0xffff80, 0xff8080, 0xff80ff, //
    0xc0c0c0, 0x0000ff, 0x0080ff, 0x00ffff, 0x00ff00, 0xffff00, 0xff0000, 0xff00ff, //
    0x808080, 0x0000c0, 0x0040c0, 0x00c0c0, 0x00c000, 0xc0c000, 0xc00000, 0xc000c0, //
    0x404040, 0x000080, 0x004080, 0x008080, 0x008000, 0x808000, 0x800000, 0x800080, //
    0x000000, 0x000040, 0x404080, 0x004040, 0x004000, 0x404000, 0x400000, 0x400040,
};

std::vector<NamedColour> allSystemColours() {
    std::vector<NamedColour> all;
    for (std::size_t i = 0; i < kSystemColours.size(); ++i)
        all.push_back({kSystemColours.at(i).name, std::int32_t(kSystemColour | std::uint32_t(i))});
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

const std::vector<NamedColour>& systemColours() {
    static const auto all = allSystemColours();
    return all;
}

std::span<const std::int32_t> paletteColours() { return kPalette; }

} // namespace workbench
