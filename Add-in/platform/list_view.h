#pragma once
#include "Add-in/platform/form.h"
#include <string>
#include <vector>

namespace fernwick {

/// MSComctlLib.ListView in report view, where several rows can be selected. Rows count from 0.
class ListView : public Control {
public:
    struct Column {
        std::string Text;
        /// Whether its cells are numbers of bytes, which front ends draw as sizes. Other texts are drawn as they are.
        bool isSize = false;
    };
    struct Item {
        /// One text for each column.
        std::vector<std::string> Cells;
        /// The file with whose icon the row is drawn; it may be missing. "" for a row without an icon.
        std::string IconOf;
        bool Selected = false;
    };
    enum class Change { Rows, Selection };

    using Control::Control;
    Event<Change> changed;
    /// The row was selected by the user.
    Event<int> ItemClick;
    static constexpr int kDeleteKey = 46;
    /// The Delete key was released: vbKeyDelete.
    Event<int> KeyUp;
    Event<> GotFocus;
    /// With the name of the control that has the focus now; "" for one of another window.
    Event<const std::string&> LostFocus;
    /// Paths of files that the user dropped onto the list. Without handlers nothing can be dropped.
    Event<const std::vector<std::string>&> FilesDropped;

    const std::vector<Column>& Columns() const { return columns_; }
    const std::vector<Item>& Items() const { return items_; }
    /// Replaces columns and rows.
    void Show(std::vector<Column> columns, std::vector<Item> items);
    /// Error 35600 for a row that does not exist.
    void Selected(int row, bool selected);

private:
    std::vector<Column> columns_;
    std::vector<Item> items_;
};

} // namespace fernwick
