#include "Add-in/build/frmCompileWarning.h"

namespace fernwick {

frmCompileWarning::frmCompileWarning(Interaction& user, modAddinPrefsManagement& prefs, ErrorReport& errors)
    : Form(user), prefs_(prefs), errors_(errors) {
    btnYes.Default = true;
    btnCancel.Cancel = true;
    chkWarning.ToolTipText.design("Check this box to not see this warning dialog again");
}

void frmCompileWarning::Form_Activate() {
    Procedure here{errors_, "frmCompileWarning.Form_Activate"};
    here([&] { user_.MessageBeep(vbQuestion); });
}

void frmCompileWarning::leave(int answer, const char* location) {
    Procedure here{errors_, location};
    Result = answer;
    here([&] { prefs_.SetQuinloftCompileWarning(chkWarning.Value() == 0); });
    Hide();
}

} // namespace fernwick
