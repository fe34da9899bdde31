#include "Host/model/forms/form_geometry.h"
#include "Basic/case_folding.h"
#include "Host/files/property_value.h"
#include "Host/files/system_error.h"
#include <array>
#include <cmath>
#include <fmt/core.h>
#include <set>
#include <tuple>
#include <utility>

namespace host {
namespace {

constexpr int kUserScale = 0, kTwipScale = 1, kPointScale = 2, kPixelScale = 3, kCharacterScale = 4, kInchScale = 5,
              kMillimetreScale = 6, kCentimetreScale = 7;

constexpr int kTwipsPerPixel = 15;
constexpr double kLargestTwips = 245745; // 16,383 pixels
constexpr double kLargestUnits = 1e9;

constexpr std::string_view kGeometryNames[] = {"Left",      "Top",        "Width",      "Height",
                                               "ScaleMode", "ScaleWidth", "ScaleHeight"};
constexpr std::string_view kClientLines[] = {"ClientLeft", "ClientTop", "ClientWidth", "ClientHeight"};
constexpr std::string_view kAcross[] = {"Left", "Width", "X1", "X2"};
constexpr std::string_view kDown[] = {"Top", "Height", "Y1", "Y2"};

/// A number that can be a place or a size.
bool isPlace(const PropertyValue& value) { return value.isNumber() && std::abs(value.number) <= kLargestUnits; }

template <std::size_t N>
bool isOneOfNames(const std::string_view (&names)[N], std::string_view name) {
    for (const auto candidate : names)
        if (basic::equalNoCase(candidate, name)) return true;
    return false;
}

/// Whole twips; other units to the three decimals of the designer, inches to as many as twips need.
std::string unitsLiteral(double value, int mode) {
    if (mode == kTwipScale) return integerLiteral(std::llround(value));
    auto text = fmt::format("{:.{}f}", value, mode == kInchScale ? 5 : 3);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text == "-0" ? "0" : text;
}

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

bool FormGeometry::owns(std::string_view name) { return isOneOfNames(kGeometryNames, name); }
bool FormGeometry::isClientLine(std::string_view key) { return isOneOfNames(kClientLines, key); }

double FormGeometry::number(std::string_view key, double fallback) const {
    const auto literal = root_.literal(key);
    const auto value = parsePropertyValue(literal.value_or(""));
    return isPlace(value) ? value.number : fallback;
}

/// Sizes of the frames of the classic desktop: borders of 3 or 4 pixels, a title bar of 19 or 16.
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

/// Going back to the scale before puts back the very lines: what another unit rounds must not stay.
void FormGeometry::setScaleMode(int mode) {
    static constexpr std::string_view kWords[] = {"User",      "Twip", "Point",      "Pixel",
                                                  "Character", "Inch", "Millimeter", "Centimeter"};
    const auto before = scale();
    ScaleChange change{scaleMode(), mode, root_.comment("ScaleMode"), scaledLines()};
    const auto back = std::exchange(state_.lastScaleChange, {});
    const bool goesBack = back.from == change.to && back.to == change.from;
    if (mode == kTwipScale && root_.wasAdded("ScaleMode"))
        state_.remove(root_, "ScaleMode");
    else
        write(root_, "ScaleMode", integerLiteral(mode), goesBack ? std::string_view(back.word) : kWords[mode]);
    writeScaleSizes();
    rescaleControls(before);
    if (goesBack) putBack(back, change);
    for (auto& line : change.lines) line.after = line.block->literal(line.key).value_or("");
    state_.lastScaleChange = std::move(change);
}

/// Of the lines that `back` changed, those that nobody has changed since.
void FormGeometry::putBack(const ScaleChange& back, const ScaleChange& change) {
    std::set<std::tuple<const FormBlock*, std::string_view, std::string_view>> untouched;
    for (const auto& line : change.lines) untouched.emplace(line.block.get(), line.key, line.before);
    for (const auto& line : back.lines)
        if (untouched.count({line.block.get(), line.key, line.after}) > 0)
            state_.set(*line.block, line.key, line.before);
}

std::vector<ScaledLine> FormGeometry::scaledLines() const {
    std::vector<ScaledLine> lines;
    const auto add = [&](const std::shared_ptr<FormBlock>& block, std::string_view key) {
        if (auto literal = block->literal(key)) lines.push_back({block, std::string(key), std::move(*literal), {}});
    };
    for (const auto key : {"ScaleWidth", "ScaleHeight"}) add(state_.file->root(), key);
    for (const auto& control : root_.objects()) {
        for (const auto key : kAcross) add(control, key);
        for (const auto key : kDown) add(control, key);
    }
    return lines;
}

void FormGeometry::setScaleSize(std::string_view key, double units) {
    if (units == 0 || std::abs(units) > kLargestUnits) throw hostError(basic::kInvalidPropertyValue);
    const auto before = scale();
    write(root_, "ScaleMode", integerLiteral(kUserScale), "User");
    write(root_, key, singleLiteral(units));
    rescaleControls(before);
}

void FormGeometry::rescaleControls(const TwipsPerUnit& before) {
    const auto now = scale();
    const auto mode = scaleMode();
    const auto rescale = [&](FormBlock& block, std::string_view key, double factor) {
        const auto value = parsePropertyValue(block.literal(key).value_or(""));
        if (isPlace(value) && factor != 1) write(block, key, unitsLiteral(value.number * factor, mode));
    };
    for (const auto& control : root_.objects()) {
        for (const auto key : kAcross) rescale(*control, key, before.x / now.x);
        for (const auto key : kDown) rescale(*control, key, before.y / now.y);
    }
}

} // namespace host
