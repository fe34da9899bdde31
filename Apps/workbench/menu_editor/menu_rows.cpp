#include "Apps/workbench/menu_editor/menu_rows.h"
#include "Apps/workbench/base/text.h"
#include "Host/model/code/menu_shortcuts.h"
#include <algorithm>
#include <utility>

namespace workbench {

namespace {

constexpr auto kDots = "····";

bool isEmpty(const host::FormMenu& row) { return !row.control && row.caption.empty() && row.name.empty(); }

} // namespace

MenuRows::MenuRows(std::vector<host::FormMenu> menus) : rows_(std::move(menus)) {
    if (rows_.empty()) addRow(0, 0);
}

QString MenuRows::shown(std::size_t row) const {
    const auto& menu = rows_[row];
    auto text = QString(kDots).repeated(menu.level) + qt(menu.caption);
    if (!menu.shortcut.empty()) text += '\t' + qt(host::shortcutText(menu.shortcut));
    return text;
}

void MenuRows::addRow(std::size_t row, int level) {
    host::FormMenu added;
    added.level = level;
    rows_.insert(rows_.begin() + std::ptrdiff_t(row), std::move(added));
}

void MenuRows::limitLevels() {
    int most = 0;
    for (auto& row : rows_) {
        row.level = std::clamp(row.level, 0, std::min(most, kDeepest));
        most = row.level + 1;
    }
}

std::size_t MenuRows::next(std::size_t row) {
    if (row + 1 == rows_.size()) addRow(row + 1, rows_[row].level);
    return row + 1;
}

std::size_t MenuRows::insertBefore(std::size_t row) {
    addRow(row, rows_[row].level);
    return row;
}

std::size_t MenuRows::remove(std::size_t row) {
    rows_.erase(rows_.begin() + std::ptrdiff_t(row));
    if (rows_.empty()) addRow(0, 0);
    limitLevels();
    return std::min(row, rows_.size() - 1);
}

std::size_t MenuRows::moveUp(std::size_t row) {
    if (row == 0) return row;
    std::swap(rows_[row - 1], rows_[row]);
    limitLevels();
    return row - 1;
}

std::size_t MenuRows::moveDown(std::size_t row) {
    if (row + 1 == rows_.size()) return row;
    std::swap(rows_[row], rows_[row + 1]);
    limitLevels();
    return row + 1;
}

void MenuRows::indent(std::size_t row) {
    ++rows_[row].level;
    limitLevels();
}

void MenuRows::outdent(std::size_t row) {
    --rows_[row].level;
    limitLevels();
}

std::vector<host::FormMenu> MenuRows::menus() const {
    std::vector<host::FormMenu> menus;
    std::copy_if(rows_.begin(), rows_.end(), std::back_inserter(menus), [](const auto& row) { return !isEmpty(row); });
    return menus;
}

std::size_t MenuRows::rowOf(std::size_t menu) const {
    std::size_t row = 0;
    for (; row < rows_.size(); ++row)
        if (!isEmpty(rows_[row]) && menu-- == 0) break;
    return row;
}

} // namespace workbench
