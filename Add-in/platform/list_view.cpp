#include "Add-in/platform/list_view.h"

namespace fernwick {

namespace {

constexpr int kIndexOutOfBounds = 35600;

} // namespace

void ListView::Show(std::vector<Column> columns, std::vector<Item> items) {
    columns_ = std::move(columns);
    items_ = std::move(items);
    for (auto& item : items_) item.Cells.resize(columns_.size());
    changed.raise(Change::Rows);
}

void ListView::Selected(int row, bool selected) {
    if (row < 0 || row >= int(items_.size())) throw basic::RuntimeError(kIndexOutOfBounds, "Index out of bounds");
    items_[std::size_t(row)].Selected = selected;
    changed.raise(Change::Selection);
}

} // namespace fernwick
