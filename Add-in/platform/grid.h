#pragma once
#include "Add-in/platform/form.h"
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fernwick {

/// MSFlexGridLib.MSFlexGrid with one fixed row: row 0 contains the headings. The others are selected as a whole.
class Grid : public Control {
public:
    /// The width of a column that nobody changed, in twips.
    static constexpr int kUsualWidth = -1;

    template <class F>
    Grid(F* form, std::string name, void (F::*click)(), void (F::*dblClick)()) : Control(form, std::move(name)) {
        click_ = Click.connect([form, click] { (form->*click)(); });
        dblClick_ = DblClick.connect([form, dblClick] { (form->*dblClick)(); });
    }
    enum class Change { Cells, Row, Widths };
    Event<Change> changed;
    /// Row is set before Click, to 0 for the headings.
    Event<> Click, DblClick;

    /// Sets the columns: their headings, separated by "|". Widths of columns that stay are kept.
    void FormatString(std::string_view headings);
    /// Includes the headings.
    int Rows() const { return int(rows_.size()); }
    /// Removes the last rows or adds empty ones. A removed row is no longer selected.
    void Rows(int count);
    int Cols() const { return int(rows_.front().size()); }
    /// Adds a row of cells separated by tabs; the last cell takes the rest.
    void AddItem(std::string_view cells);
    /// The selected row; 0 for none.
    int Row() const { return row_; }
    /// Error 30009 for a row that does not exist.
    void Row(int row);
    /// Selects a row and raises Click, as the user does.
    void choose(int row) {
        Row(row);
        Click.raise();
    }
    /// These raise error 381 outside of the grid.
    const std::string& TextMatrix(int row, int column) const;
    int ColWidth(int column) const;
    void ColWidth(int column, int twips);

private:
    using Cells = std::vector<std::string>;
    static Cells split(std::string_view text, char separator, std::size_t most);
    void check(int row, int column) const;

    std::vector<Cells> rows_{Cells(2)};
    std::vector<int> widths_{kUsualWidth, kUsualWidth};
    int row_ = 0;
    Subscription click_, dblClick_;
};

} // namespace fernwick
