#pragma once
#include "Add-in/core/procedure.h"
#include "Add-in/platform/controls.h"
#include "Add-in/platform/platform.h"

namespace fernwick {

/// The About box.
class frmAbout : public Form {
public:
    frmAbout(Platform& platform, ErrorReport& errors);
    const char* typeName() const override { return "frmAbout"; }

    Label lblProduct{this, "lblProduct"};
    Label lblVersion{this, "lblVersion"};
    Label lblMaker{this, "lblMaker"};
    Label lblWebAddress{this, "lblWebAddress", {}, &frmAbout::lblWebAddress_Click};
    CommandButton btnOK{this, "btnOK", "OK", &frmAbout::btnOK_Click};

private:
    void lblWebAddress_Click();
    void btnOK_Click();

    Platform& platform_;
    ErrorReport& errors_;
};

} // namespace fernwick
