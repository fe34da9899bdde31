#include "Add-in/platform/controls.h"

namespace fernwick {

const ListBox::Row& ListBox::row(int i) const {
    if (i < 0 || i >= ListCount()) throw basic::RuntimeError(basic::kInvalidPropertyArrayIndex);
    return rows_[size_t(i)];
}

void ListBox::Selected(int i, bool selected) {
    row(i).selected = selected;
    changed.raise({Change::Altered, i});
}

void ListBox::List(int i, std::string text) {
    row(i).text = std::move(text);
    changed.raise({Change::Altered, i});
}

void ListBox::AddItem(std::string text) {
    rows_.push_back({std::move(text)});
    newIndex_ = ListCount() - 1;
    changed.raise({Change::Inserted, newIndex_});
}

void ListBox::RemoveItem(int i) {
    row(i);
    rows_.erase(rows_.begin() + i);
    newIndex_ = -1;
    if (listIndex_ == i)
        listIndex_ = -1;
    else if (listIndex_ > i)
        --listIndex_;
    changed.raise({Change::Removed, i});
}

void ListBox::Clear() {
    rows_.clear();
    listIndex_ = newIndex_ = -1;
    changed.raise({Change::Reset, -1});
}

void ListBox::ListIndex(int i) {
    if (i < -1 || i >= ListCount()) throw basic::RuntimeError(basic::kInvalidPropertyValue);
    listIndex_ = i;
    changed.raise({Change::Altered, i});
    if (i >= 0) Click.raise();
}

} // namespace fernwick
