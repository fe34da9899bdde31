#include "Add-in/lifecycle/frmDesignTargetNormal.h"
#include "Add-in/lifecycle/target_keys.h"

namespace fernwick {

frmDesignTargetNormal::frmDesignTargetNormal(const DeviceServices& services)
    : Form(services.user), services_(services) {
    Caption.design("Select Design Target");
    btnOK.Default = true;
    btnOK.Enabled.design(false);
    btnCancel.Cancel = true;
}

void frmDesignTargetNormal::Form_Load() {
    Procedure here{services_.errors, "frmDesignTargetNormal.Form_Load"};
    auto& devices = services_.devices;
    lstQuickDesignTargets.Clear();
    targetKeys_ = oneTargetAPlatform(devices.GetDesignTargets(false));
    for (const auto& key : targetKeys_)
        here([&] { lstQuickDesignTargets.AddItem(devices.StripAcceleratorInfo(devices.GetDeviceName(key))); });
}

void frmDesignTargetNormal::btnOK_Click() {
    Procedure here{services_.errors, "frmDesignTargetNormal.btnOK_Click"};
    const int row = lstQuickDesignTargets.ListIndex();
    if (row < 0) return; // double click below the last row
    const auto key = targetKeys_[std::size_t(row)];
    clsDeviceConfig device{services_};
    device.ReadDeviceConfig(key);
    here([&] { workingProject_->SetProjectForDeviceConfig(device); });
    Unload();
}

} // namespace fernwick
