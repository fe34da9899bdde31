#pragma once
// The units of forms and picture boxes.
#include "Host/files/property_value.h"
#include <string>

namespace host {

inline constexpr int kUserScale = 0, kTwipScale = 1, kPointScale = 2, kPixelScale = 3, kCharacterScale = 4,
                     kInchScale = 5, kMillimetreScale = 6, kCentimetreScale = 7;
inline constexpr double kLargestUnits = 1e9;

/// The size of a unit in twips; 1 for modes without a fixed unit.
struct TwipsPerUnit {
    double x = 1, y = 1;
};
TwipsPerUnit twipsPerUnit(int scaleMode);

/// True for a number that can be a position or size.
bool isPlace(const PropertyValue& value);

/// A number in these units: whole twips; three decimals for other units, five for inches.
std::string unitsLiteral(double value, int scaleMode);

} // namespace host
