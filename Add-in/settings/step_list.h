#pragma once
// One list of the compiler page: the programs that run before a compile, or after it.
#include "Add-in/core/array.h"
#include "Add-in/platform/controls.h"
#include "Add-in/platform/text_box.h"
#include "Add-in/settings/settings_services.h"

namespace fernwick {

class StepList {
public:
    /// `kind` is "Pre" or "Post" and part of the controls' names.
    StepList(Form* form, const SettingsServices& services, const basic::Ref<clsQLProject>& project,
             const std::string& kind);

    ListBox lstSteps;
    TextBox txtNewStep;
    CommandButton cmdBrowse, cmdAdd, cmdEdit, cmdRemove, cmdMoveUp, cmdMoveDown;

    void show(const Array<std::string>& steps);
    /// From index 0; not allocated if there are none.
    Array<std::string> steps() const;

private:
    void cmdBrowse_Click();
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdRemove_Click();
    void cmdMoveUp_Click();
    void cmdMoveDown_Click();
    bool hasSelection() const;
    bool canBeAdded(Procedure& here, const std::string& step);
    void swapRows(int a, int b);
    Procedure trap(const std::string& event) const;

    const SettingsServices& services_;
    std::string kind_;
    /// The dialog's.
    const basic::Ref<clsQLProject>& project_;
    /// The row that Add replaces; -1 for none.
    int edited_ = -1;
};

} // namespace fernwick
