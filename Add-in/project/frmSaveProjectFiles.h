#pragma once
// Asks whether to save before a compile.
#include "Add-in/core/AddIn.h"
#include "Add-in/platform/controls.h"

namespace fernwick {

class frmSaveProjectFiles final : public Form {
public:
    frmSaveProjectFiles(Interaction& user, AddIn& addIn);
    const char* typeName() const override { return "frmSaveProjectFiles"; }

    /// Shows the question and returns whether the answer was Yes. The caller reads chkWarning and unloads the form.
    /// Errors of the form reach the caller.
    bool AskForProjectSave(const std::string& question);

    Label lblWarning{this, "lblWarning"};
    CommandButton btnYes{this, "btnYes", "&Yes", &frmSaveProjectFiles::btnYes_Click};
    CommandButton btnNo{this, "btnNo", "&No", &frmSaveProjectFiles::btnNo_Click};
    CheckBox chkWarning;

private:
    void btnYes_Click();
    void btnNo_Click();
    void answer(bool yes);

    AddIn& addIn_;
    bool yes_ = false;
};

} // namespace fernwick
