#include "Add-in/commands/frmAbout.h"
#include "Add-in/commands/command_texts.h"

namespace fernwick {

frmAbout::frmAbout(Platform& platform, ErrorReport& errors)
    : Form(platform.interaction), platform_(platform), errors_(errors) {
    Caption.design(command_texts::kAboutTitle);
    lblProduct.Caption.design(command_texts::kProduct);
    lblVersion.Caption.design(command_texts::kVersion);
    lblMaker.Caption.design(command_texts::kMaker);
    lblWebAddress.Caption.design(command_texts::kVisit + platform.app.WebAddress + command_texts::kMoreInformation);
    btnOK.Default = true;
    btnOK.Cancel = true;
}

void frmAbout::lblWebAddress_Click() {
    Procedure here{errors_, "frmAbout.lblWebAddress_Click"};
    here([&] { platform_.shell.Open(platform_.app.WebAddress); });
}

void frmAbout::btnOK_Click() {
    Procedure here{errors_, "frmAbout.btnOK_Click"};
    here([&] { Unload(); });
}

} // namespace fernwick
