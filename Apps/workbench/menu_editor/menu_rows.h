#pragma once
// The menus while they are edited, as the rows of the menu editor's list.
#include "Host/model/menus/menu_edits.h"
#include <QString>
#include <cstddef>
#include <vector>

namespace workbench {

/// There is always a row, if only an empty one, so that there is something to type into. No row is more than one level
/// below the one before it.
class MenuRows {
public:
    static constexpr int kDeepest = 4;

    explicit MenuRows(std::vector<host::FormMenu> menus);

    std::size_t count() const { return rows_.size(); }
    host::FormMenu& at(std::size_t row) { return rows_[row]; }
    /// The row as the list shows it: dots for its level, its caption and its shortcut.
    QString shown(std::size_t row) const;

    /// These return the row that is current afterwards.
    std::size_t next(std::size_t row);
    std::size_t insertBefore(std::size_t row);
    std::size_t remove(std::size_t row);
    std::size_t moveUp(std::size_t row);
    std::size_t moveDown(std::size_t row);
    void indent(std::size_t row);
    void outdent(std::size_t row);

    /// The menus without empty new rows.
    std::vector<host::FormMenu> menus() const;
    /// The row of a menu in menus().
    std::size_t rowOf(std::size_t menu) const;

private:
    void addRow(std::size_t row, int level);
    void limitLevels();

    std::vector<host::FormMenu> rows_;
};

} // namespace workbench
