#include "Host/model/forms/scale_modes.h"
#include <cmath>
#include <fmt/core.h>

namespace host {
namespace {

constexpr int kTwipsPerPixel = 15;

} // namespace

TwipsPerUnit twipsPerUnit(int scaleMode) {
    switch (scaleMode) {
    case kPointScale: return {20, 20};
    case kPixelScale: return {kTwipsPerPixel, kTwipsPerPixel};
    case kCharacterScale: return {120, 240};
    case kInchScale: return {1440, 1440};
    case kMillimetreScale: return {1440 / 25.4, 1440 / 25.4};
    case kCentimetreScale: return {1440 / 2.54, 1440 / 2.54};
    default: return {1, 1};
    }
}

bool isPlace(const PropertyValue& value) { return value.isNumber() && std::abs(value.number) <= kLargestUnits; }

std::string unitsLiteral(double value, int scaleMode) {
    if (scaleMode == kTwipScale) return integerLiteral(std::llround(value));
    auto text = fmt::format("{:.{}f}", value, scaleMode == kInchScale ? 5 : 3);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

} // namespace host
