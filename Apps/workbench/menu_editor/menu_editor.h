#pragma once
// The dialog that edits the menus of a form.
#include "Apps/workbench/menu_editor/menu_rows.h"
#include "Apps/workbench/properties/design_history.h"
#include <QDialog>

class QListWidget;

namespace workbench {

class MenuFields;

class MenuEditor final : public QDialog {
public:
    MenuEditor(DesignHistory& history, vbide::Ref<vbide::VBComponent> component, QWidget* parent);

    MenuRows& rows() { return rows_; }

    /// Changes the form as one step, unless a menu has a problem, which is shown.
    void accept() override;

private:
    QWidget* buttons();
    QWidget* moves();
    void list();
    void showRow(std::size_t row);
    std::size_t current() const;
    /// Makes a change of the rows and shows them again.
    void change(std::size_t (MenuRows::*act)(std::size_t));
    void changeLevel(void (MenuRows::*act)(std::size_t));
    void next();
    bool write(const std::vector<host::FormMenu>& menus);

    DesignHistory& history_;
    vbide::Ref<vbide::VBComponent> component_;
    const std::vector<host::FormMenu> before_;
    MenuRows rows_;
    MenuFields* fields_;
    QListWidget* list_;
};

/// Shows the dialog for a form. Errors of a component without a form go to the caller.
void editMenus(DesignHistory& history, const vbide::Ref<vbide::VBComponent>& component, QWidget* parent);

} // namespace workbench
