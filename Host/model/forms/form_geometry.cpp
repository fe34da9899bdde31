#include "Host/model/forms/form_geometry.h"
#include "Basic/case_folding.h"
#include "Host/files/system_error.h"
#include <array>
#include <cmath>

namespace host {
namespace {

constexpr double kLargestTwips = 245745; // 16,383 pixels

constexpr std::string_view kGeometryNames[] = {"Left",      "Top",        "Width",      "Height",
                                               "ScaleMode", "ScaleWidth", "ScaleHeight"};
constexpr std::string_view kClientLines[] = {"ClientLeft", "ClientTop", "ClientWidth", "ClientHeight"};

template <std::size_t N>
bool isOneOfNames(const std::string_view (&names)[N], std::string_view name) {
    for (const auto candidate : names)
        if (basic::equalNoCase(candidate, name)) return true;
    return false;
}

} // namespace

bool FormGeometry::owns(std::string_view name) { return isOneOfNames(kGeometryNames, name); }
bool FormGeometry::isClientLine(std::string_view key) { return isOneOfNames(kClientLines, key); }

double FormGeometry::number(std::string_view key, double fallback) const {
    const auto literal = root_.literal(key);
    const auto value = parsePropertyValue(literal.value_or(""));
    return isPlace(value) ? value.number : fallback;
}

/// Frame sizes of the classic desktop: borders of 3 or 4 pixels, a title bar of 19 or 16.
FormGeometry::Frame FormGeometry::frame() const {
    static constexpr std::array<Frame, 6> kFrames{{{0, 0, 0, 0},
                                                   {90, 375, 45, 330},
                                                   {120, 405, 60, 345},
                                                   {90, 375, 45, 330},
                                                   {90, 330, 45, 285},
                                                   {120, 360, 60, 300}}};
    if (basic::equalNoCase(root_.type(), "VB.MDIForm")) return kFrames[2];
    if (!basic::equalNoCase(root_.type(), "VB.Form")) return kFrames[0];
    const auto style = number("BorderStyle", 2);
    return style >= 0 && style < kFrames.size() ? kFrames[std::size_t(style)] : kFrames[2];
}

int FormGeometry::scaleMode() const {
    const auto mode = number("ScaleMode", kTwipScale);
    return mode >= kUserScale && mode <= kCentimetreScale ? int(mode) : kTwipScale;
}

TwipsPerUnit FormGeometry::scale() const {
    const auto mode = scaleMode();
    if (mode != kUserScale) return twipsPerUnit(mode);
    const auto perUnit = [&](std::string_view client, std::string_view units) {
        const auto twips = number(client, 0), size = number(units, twips);
        return twips > 0 && size != 0 ? twips / size : 1.0;
    };
    return {perUnit("ClientWidth", "ScaleWidth"), perUnit("ClientHeight", "ScaleHeight")};
}

FormExtent FormGeometry::extent() const {
    const auto frame = this->frame();
    return {number("ClientWidth", 0), number("ClientHeight", 0),        double(frame.left),
            double(frame.top),        double(frame.width - frame.left), double(frame.height - frame.top)};
}

double FormGeometry::value(std::string_view name) const {
    if (basic::equalNoCase(name, "Left")) return number("ClientLeft", 0) - frame().left;
    if (basic::equalNoCase(name, "Top")) return number("ClientTop", 0) - frame().top;
    if (basic::equalNoCase(name, "Width")) return number("ClientWidth", 0) + frame().width;
    if (basic::equalNoCase(name, "Height")) return number("ClientHeight", 0) + frame().height;
    if (basic::equalNoCase(name, "ScaleMode")) return scaleMode();
    const bool across = basic::equalNoCase(name, "ScaleWidth");
    const auto twips = number(across ? "ClientWidth" : "ClientHeight", 0);
    if (scaleMode() == kUserScale) return number(name, twips);
    return twips / (across ? scale().x : scale().y);
}

void FormGeometry::value(std::string_view name, double value) {
    if (!std::isfinite(value)) throw hostError(basic::kOverflow);
    if (value == this->value(name)) return;
    if (basic::equalNoCase(name, "Left")) return setClient("ClientLeft", value + frame().left);
    if (basic::equalNoCase(name, "Top")) return setClient("ClientTop", value + frame().top);
    if (basic::equalNoCase(name, "Width")) return setClient("ClientWidth", std::max(0.0, value - frame().width));
    if (basic::equalNoCase(name, "Height")) return setClient("ClientHeight", std::max(0.0, value - frame().height));
    if (basic::equalNoCase(name, "ScaleMode")) {
        if (value < kUserScale || value > kCentimetreScale) throw hostError(basic::kInvalidPropertyValue);
        return setScaleMode(int(std::nearbyint(value)));
    }
    setScaleSize(name, value);
}

void FormGeometry::write(FormBlock& block, std::string_view key, const std::string& literal, std::string_view comment) {
    const auto before = block.literal(key);
    if (!before || parsePropertyValue(*before).number != parsePropertyValue(literal).number)
        state_.set(block, key, literal, comment);
}

void FormGeometry::setClient(std::string_view key, double twips) {
    if (std::abs(twips) > kLargestTwips) throw hostError(basic::kInvalidPropertyValue);
    write(root_, key, integerLiteral(std::llround(twips)));
    writeScaleSizes();
}

void FormGeometry::writeScaleSizes() {
    const auto mode = scaleMode();
    if (mode == kUserScale) return;
    for (const std::string_view key : {"ScaleWidth", "ScaleHeight"})
        if (root_.literal(key)) write(root_, key, unitsLiteral(value(key), mode));
}

} // namespace host
