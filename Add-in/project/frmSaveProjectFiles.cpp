#include "Add-in/project/frmSaveProjectFiles.h"
#include "Add-in/core/core_texts.h"
#include "Add-in/project/stored/project_texts.h"

namespace fernwick {

frmSaveProjectFiles::frmSaveProjectFiles(Interaction& user, AddIn& addIn)
    : Form(user), chkWarning(this, "chkWarning", std::string(texts::kDontAskAgain)), addIn_(addIn) {
    Caption.design(std::string(texts::kFernwick));
    chkWarning.ToolTipText.design(std::string(texts::kDontAskAgainTip));
    btnYes.Default = true;
    btnNo.Cancel = true;
}

bool frmSaveProjectFiles::AskForProjectSave(const std::string& question) {
    yes_ = false;
    Load();
    lblWarning.Caption(question);
    ShowModal();
    return yes_;
}

void frmSaveProjectFiles::btnYes_Click() { answer(true); }
void frmSaveProjectFiles::btnNo_Click() { answer(false); }

void frmSaveProjectFiles::answer(bool yes) {
    yes_ = yes;
    addIn_.SetQuinloftSaveWarning(chkWarning.Value() == 0);
    Hide();
}

} // namespace fernwick
