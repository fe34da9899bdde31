#pragma once
// The fields of one menu in the menu editor.
#include "Host/model/menus/menu_edits.h"
#include <QWidget>
#include <functional>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace workbench {

class MenuFields final : public QWidget {
public:
    MenuFields();

    /// Shows the values of a menu.
    void show(const host::FormMenu& menu);
    /// Stores what the fields have.
    void readInto(host::FormMenu& menu) const;
    /// Called when the user changes a field.
    std::function<void()> edited = [] {};

    QLineEdit& caption() { return *caption_; }
    QLineEdit& name() { return *name_; }

private:
    void layOut();
    void watch();

    QLineEdit *caption_, *name_, *index_, *helpContextId_;
    QComboBox *shortcut_, *negotiatePosition_;
    QCheckBox *checked_, *enabled_, *visible_, *windowList_;
    bool showing_ = false;
};

} // namespace workbench
