#include "Add-in/project/frmSaveWarning.h"
#include "Add-in/project/stored/project_texts.h"

namespace fernwick {

frmSaveWarning::frmSaveWarning(Interaction& user, AddIn& addIn)
    : Form(user), chkWarning(this, "chkWarning", std::string(texts::kDontAskAgain)), addIn_(addIn) {
    chkWarning.ToolTipText.design(std::string(texts::kDontAskAgainTip));
    btnOK.Default = true;
    btnOK.Cancel = true;
}

void frmSaveWarning::btnOK_Click() {
    addIn_.SetQuinloftSaveWarning(chkWarning.Value() == 0);
    Hide();
}

} // namespace fernwick
