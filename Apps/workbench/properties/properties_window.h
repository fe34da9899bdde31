#pragma once
// The window with the properties of the selected object.
#include "Apps/workbench/properties/design_history.h"
#include "Apps/workbench/properties/property_editors.h"
#include "Apps/workbench/properties/property_rows.h"
#include <QTimer>
#include <QWidget>
#include <functional>

class QComboBox;
class QTableView;

namespace workbench {

class PropertiesWindow final : public QWidget {
public:
    struct Callbacks {
        std::function<void(const std::function<void()>&)> run;
        /// The user selects a control of the component that is shown; Nothing for the component itself.
        std::function<void(const vbide::Ref<vbide::VBControl>&)> select;
    };

    PropertiesWindow(DesignHistory& history, Callbacks callbacks);

    /// Shows a component or one of its controls. A component without a designer has only a name.
    void inspect(const vbide::Ref<vbide::VBComponent>& component, const vbide::Ref<vbide::VBControl>& control = {});
    void inspect(const vbide::Ref<vbide::VBProject>& project);
    /// Shows nothing.
    void clear();
    /// Draws names, values and the list of controls again when Qt's loop turns.
    void refreshSoon() { refresh_.start(); }

    QTableView& table() { return *table_; }
    PropertyRows& rows() { return rows_; }
    QComboBox& objects() { return *objects_; }

private:
    void buildTable();
    void show();
    void refresh();
    InspectedObject object() const;
    void listObjects();
    void chosen(int row);
    void doubleClicked(const QModelIndex& index);
    void chooseFont(const vbide::Ref<vbide::Property>& font);

    DesignHistory& history_;
    Callbacks callbacks_;
    vbide::Ref<vbide::VBProject> project_;
    vbide::Ref<vbide::VBComponent> component_;
    vbide::Ref<vbide::VBControl> control_;
    std::vector<vbide::Ref<vbide::VBControl>> controls_;
    QComboBox* objects_;
    QTableView* table_;
    PropertyRows rows_;
    PropertyEditors editors_;
    QString currentName_;
    QTimer refresh_;
};

} // namespace workbench
