#include "Add-in/platform/grid.h"
#include <algorithm>

namespace fernwick {

namespace {
constexpr int kInvalidRowValue = 30009;
} // namespace

Grid::Cells Grid::split(std::string_view text, char separator, std::size_t most) {
    Cells cells;
    while (cells.size() + 1 < most) {
        const auto end = text.find(separator);
        cells.emplace_back(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    }
    cells.emplace_back(text);
    return cells;
}

void Grid::FormatString(std::string_view headings) {
    const auto columns = std::size_t(std::count(headings.begin(), headings.end(), '|')) + 1;
    rows_.front() = split(headings, '|', columns);
    for (auto& row : rows_) row.resize(columns);
    widths_.resize(columns, kUsualWidth);
    changed.raise(Change::Cells);
}

void Grid::Rows(int count) {
    rows_.resize(std::size_t(std::max(count, 1)), Cells(rows_.front().size()));
    if (row_ >= Rows()) row_ = 0;
    changed.raise(Change::Cells);
}

void Grid::AddItem(std::string_view cells) {
    rows_.push_back(split(cells, '\t', rows_.front().size()));
    changed.raise(Change::Cells);
}

void Grid::check(int row, int column) const {
    if (row < 0 || row >= Rows() || column < 0 || column >= Cols())
        throw basic::RuntimeError(basic::kInvalidPropertyArrayIndex);
}

const std::string& Grid::TextMatrix(int row, int column) const {
    check(row, column);
    return rows_[std::size_t(row)][std::size_t(column)];
}

int Grid::ColWidth(int column) const {
    check(0, column);
    return widths_[std::size_t(column)];
}

void Grid::ColWidth(int column, int twips) {
    check(0, column);
    auto& width = widths_[std::size_t(column)];
    if (width == twips) return;
    width = twips;
    changed.raise(Change::Widths);
}

void Grid::Row(int row) {
    if (row < 0 || row >= Rows()) throw basic::RuntimeError(kInvalidRowValue);
    row_ = row;
    changed.raise(Change::Row);
}

} // namespace fernwick
