#pragma once
// The colours of forms, as their text says them.
#include <QColor>
#include <QString>
#include <cstdint>
#include <optional>
#include <vector>

namespace workbench {

/// &H00BBGGRR, or &H800000nn for the system's colour of that number. The system's colours are those of the classic
/// desktop, so that a form looks the same everywhere.
QColor formColour(std::int32_t value);

/// "&H8000000F&".
QString formColourText(std::int32_t value);
/// Hexadecimal with or without "&" at its end, or decimal; nothing for what is no colour.
std::optional<std::int32_t> formColourOf(const QString& text);

struct NamedColour {
    QString name;
    std::int32_t value = 0;
};
/// The system's colours, then a palette.
const std::vector<NamedColour>& namedColours();

} // namespace workbench
