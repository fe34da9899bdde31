#include "Add-in/build/messages/message_grid.h"
#include "Basic/runtime_error.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace fernwick {

namespace {

constexpr int kInvalidRowValue = 30009;
/// In pixels: the width of a picture and the minimum height of a row with one.
constexpr int kPicturePixels = 20;
/// In twips, for rows without text.
constexpr std::int32_t kLeastRowHeight = 20;

constexpr std::array<MessageGrid::ColumnDesign, MessageGrid::kColumns> kDesign{{
    {"FileName", true, flexAlignCenterCenter, flexAlignGeneral, 0},
    {"", false, flexAlignCenterCenter, flexAlignGeneral, 0},
    {"Name", true, flexAlignCenterCenter, flexAlignGeneral, 0.10},
    {"Line #", true, flexAlignCenterCenter, flexAlignCenterTop, 0.07},
    {"Err #", true, flexAlignCenterCenter, flexAlignCenterTop, 0.07},
    {"Message/Warning/Error", true, flexAlignLeftCenter, flexAlignGeneral, 0.76},
}};

/// Rounds half to even. A length beyond the grid's maximum becomes that maximum.
std::int32_t twips(double length) {
    return std::int32_t(std::clamp(std::nearbyint(length), 0.0, double(std::numeric_limits<std::int32_t>::max())));
}

[[noreturn]] void refuseRow() { throw basic::RuntimeError(kInvalidRowValue, "Invalid Row value"); }

} // namespace

const MessageGrid::ColumnDesign& MessageGrid::design(Column column) { return kDesign[column]; }

const MessageGrid::Row& MessageGrid::row(std::int32_t index) const {
    if (index < kFixedRows || index >= rowCount()) refuseRow();
    return *rows_[std::size_t(index - kFixedRows)];
}

std::string MessageGrid::cell(std::int32_t index, Column column) const {
    return index == 0 ? kDesign[column].header : row(index).cells[column];
}

std::shared_ptr<MessageGrid::Row> MessageGrid::insert(std::array<std::string, kColumns> cells, bool atTop) {
    auto fresh = std::make_shared<Row>();
    fresh->cells = std::move(cells);
    rows_.insert(atTop ? rows_.begin() : rows_.end(), fresh);
    return fresh;
}

TextExtent MessageGrid::measured(const std::string& text) const noexcept {
    return context_ ? context_->GetTextExtentPoint32(text) : TextExtent{};
}

void MessageGrid::measureAll() {
    for (const auto& row : rows_) measure(*row);
}

void MessageGrid::fitHeight(Row& row) {
    const auto lines = twips(double(row.extent.width) * twipsX_) / keepPositive(columnWidth(MessageColumn)) + 1;
    const auto line = twips(double(row.extent.height) * twipsY_);
    row.height = std::max(twips(double(lines) * line), twips(double(kPicturePixels) * twipsY_));
    rowHeightMin_ = line > 0 ? line : kLeastRowHeight;
}

void MessageGrid::SetGridSizes(std::int32_t documentWidth, std::int32_t documentHeight, std::int32_t top) {
    width_ = documentWidth;
    if (documentHeight - top > 0) height_ = documentHeight - top;
    const auto picture = twips(double(kPicturePixels) * twipsX_);
    const double rest = width_ - picture;
    columnWidths_[PictureColumn] = picture;
    for (const auto column : {TitleColumn, LineColumn, ErrorColumn, MessageColumn})
        columnWidths_[column] = keepPositive(twips(rest * kDesign[column].share));
    for (const auto& row : rows_) fitHeight(*row);
}

std::int32_t MessageGrid::rowHeight(std::int32_t index) const { return std::max(row(index).height, rowHeightMin_); }

} // namespace fernwick
