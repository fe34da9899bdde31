// Changing the scale of a form.
#include "Host/files/system_error.h"
#include "Host/model/forms/form_geometry.h"
#include <cmath>
#include <set>
#include <tuple>
#include <utility>

namespace host {
namespace {

constexpr std::string_view kAcross[] = {"Left", "Width", "X1", "X2"};
constexpr std::string_view kDown[] = {"Top", "Height", "Y1", "Y2"};

} // namespace

/// Returning to the previous scale restores the original lines, so that rounding in another unit leaves no traces.
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

/// Restores the lines that `back` changed and that were not changed since.
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
