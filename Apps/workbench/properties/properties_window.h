#pragma once
// The window with the properties of what is selected.
#include "Apps/workbench/properties/design_history.h"
#include "Apps/workbench/properties/inspected_object.h"
#include "Apps/workbench/properties/properties_table.h"
#include "Apps/workbench/properties/property_editors.h"
#include "Apps/workbench/properties/property_rows.h"
#include <QTimer>
#include <QWidget>
#include <functional>

class QComboBox;
class QSplitter;
class QTabBar;

namespace workbench {

class DescriptionPane;

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
    /// Shows what several controls of a component have in common; the component itself if there are none.
    void inspect(const vbide::Ref<vbide::VBComponent>& component, const InspectedControls& controls);
    void inspect(const vbide::Ref<vbide::VBProject>& project);
    /// Shows nothing.
    void clear();
    /// Draws names, values and the list of controls again when Qt's loop turns.
    void refreshSoon() { refresh_.start(); }

    PropertiesTable& table() { return *table_; }
    PropertyRows& rows() { return rows_; }
    QComboBox& objects() { return *objects_; }

private:
    void buildTable();
    void layOut();
    void addDescription();
    void show();
    void refresh();
    InspectedObject object() const;
    void listObjects();
    void listControls();
    void chosen(int row);
    void categorize(bool categorized);
    void describe();
    void spanHeadings();
    void selectRow(const QString& name);
    void open(const QModelIndex& index);
    void doubleClicked(const QModelIndex& index);

    DesignHistory& history_;
    Callbacks callbacks_;
    vbide::Ref<vbide::VBProject> project_;
    vbide::Ref<vbide::VBComponent> component_;
    InspectedControls selected_;
    InspectedControls controls_; ///< all of the component, as they are listed
    QComboBox* objects_;
    QTabBar* order_;
    QSplitter* splitter_;
    PropertiesTable* table_;
    DescriptionPane* description_;
    PropertyRows rows_;
    PropertyEditors editors_;
    QString currentName_;
    QTimer refresh_;
};

} // namespace workbench
