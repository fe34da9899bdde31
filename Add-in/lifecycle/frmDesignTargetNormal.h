#pragma once
// Lets the user choose the device of a project that has none, or whose device isn't available.
#include "Add-in/devices/clsDeviceConfig.h"
#include "Add-in/platform/controls.h"
#include "Add-in/project/clsQLProject.h"

namespace fernwick {

class frmDesignTargetNormal : public Form {
public:
    explicit frmDesignTargetNormal(const DeviceServices& services);
    const char* typeName() const override { return "frmDesignTargetNormal"; }

    ListBox lstQuickDesignTargets{this, "lstQuickDesignTargets", &frmDesignTargetNormal::lstQuickDesignTargets_Click,
                                  &frmDesignTargetNormal::btnOK_Click};
    CommandButton btnOK{this, "btnOK", "OK", &frmDesignTargetNormal::btnOK_Click};
    CommandButton btnCancel{this, "btnCancel", "Cancel", &frmDesignTargetNormal::btnCancel_Click};
    CommandButton btnAdvanced{this, "btnAdvanced", "&Advanced...", &frmDesignTargetNormal::btnAdvanced_Click};
    PictureBox Picture1{this, "Picture1", "devices"};

    /// To be called before the form is shown.
    void SetWorkingProject(const basic::Ref<clsQLProject>& project) { workingProject_ = project; }
    /// Keys of the list's rows.
    const std::vector<std::string>& targetKeys() const { return targetKeys_; }

protected:
    void Form_Load() override;
    void Form_Unload() override { workingProject_ = nullptr; }

private:
    void lstQuickDesignTargets_Click() { btnOK.Enabled(true); }
    void btnOK_Click();
    void btnCancel_Click() { Unload(); }
    void btnAdvanced_Click() {}

    DeviceServices services_;
    basic::Ref<clsQLProject> workingProject_;
    std::vector<std::string> targetKeys_;
};

} // namespace fernwick
