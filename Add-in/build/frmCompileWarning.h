#pragma once
// Asks whether to compile before a project is sent.
#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/platform/controls.h"

namespace fernwick {

/// The caller sets Caption and lblWarning, shows the form, reads Result and unloads it.
class frmCompileWarning : public Form {
public:
    frmCompileWarning(Interaction& user, modAddinPrefsManagement& prefs, ErrorReport& errors);
    const char* typeName() const override { return "frmCompileWarning"; }

    PictureBox picWarning{this, "picWarning", "question"};
    Label lblWarning{this, "lblWarning"};
    CheckBox chkWarning{this, "chkWarning", "Don't show me this again"};
    CommandButton btnYes{this, "btnYes", "&Yes", &frmCompileWarning::btnYes_Click};
    CommandButton btnNo{this, "btnNo", "&No", &frmCompileWarning::btnNo_Click};
    CommandButton btnCancel{this, "btnCancel", "Cancel", &frmCompileWarning::btnCancel_Click};

    /// vbYes, vbNo or vbCancel.
    int Result = vbCancel;

protected:
    void Form_Load() override { Result = vbCancel; }
    void Form_Activate() override;

private:
    void btnYes_Click() { leave(vbYes, "frmCompileWarning.btnYes_Click"); }
    void btnNo_Click() { leave(vbNo, "frmCompileWarning.btnNo_Click"); }
    void btnCancel_Click() { leave(vbCancel, "frmCompileWarning.btnCancel_Click"); }
    void leave(int answer, const char* location);

    modAddinPrefsManagement& prefs_;
    ErrorReport& errors_;
};

} // namespace fernwick
