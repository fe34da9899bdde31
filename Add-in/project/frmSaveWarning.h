#pragma once
// Informs the user that an unsaved project must be saved.
#include "Add-in/core/AddIn.h"
#include "Add-in/platform/controls.h"

namespace fernwick {

/// The caller loads it, sets the caption and lblWarning, shows it modally and unloads it.
class frmSaveWarning final : public Form {
public:
    frmSaveWarning(Interaction& user, AddIn& addIn);
    const char* typeName() const override { return "frmSaveWarning"; }

    Label lblWarning{this, "lblWarning"};
    CommandButton btnOK{this, "btnOK", "OK", &frmSaveWarning::btnOK_Click};
    CheckBox chkWarning;

private:
    void btnOK_Click();

    AddIn& addIn_;
};

} // namespace fernwick
