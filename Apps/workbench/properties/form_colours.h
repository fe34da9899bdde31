#pragma once
// Colours as forms store them.
#include <QColor>
#include <QPixmap>
#include <QString>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace workbench {

/// Converts &H00BBGGRR, or &H800000nn for a system colour. System colours are those of the classic desktop, so that a
/// form looks the same everywhere.
QColor formColour(std::int32_t value);

/// "&H8000000F&".
QString formColourText(std::int32_t value);
/// Parses a hexadecimal number with or without "&" at the end, or a decimal one. Empty if it is not a colour.
std::optional<std::int32_t> formColourOf(const QString& text);

/// A rectangle of the colour, whose edge is seen on the paper of both themes.
QPixmap colourSwatch(std::int32_t value, const QSize& size);

struct NamedColour {
    QString name;
    std::int32_t value = 0;
};
const std::vector<NamedColour>& systemColours();

/// The colours that the designer offers, in rows of eight from light to dark.
inline constexpr int kPaletteColours = 48, kPaletteColumns = 8;
std::span<const std::int32_t> paletteColours();

} // namespace workbench
