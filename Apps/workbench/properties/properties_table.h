#pragma once
#include <QTableView>
#include <functional>

namespace workbench {

/// The table of properties and values with its keys.
class PropertiesTable final : public QTableView {
public:
    PropertiesTable();

    /// Alt+Down: opens the list or window of the current value.
    std::function<void(const QModelIndex&)> open = [](const auto&) {};
    /// Delete. False if it edits the value, as other keys do.
    std::function<bool(const QModelIndex&)> remove = [](const auto&) { return false; };

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace workbench
