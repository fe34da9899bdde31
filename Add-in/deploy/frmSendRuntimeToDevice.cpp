#include "Add-in/deploy/frmSendRuntimeToDevice.h"
#include "Add-in/deploy/deploy_texts.h"

namespace fernwick {

frmSendRuntimeToDevice::frmSendRuntimeToDevice(const PipeServices& services)
    : PipeForm(services.platform.interaction, run_), errors_(services.errors), run_(services, *this) {
    Caption.design(deploy_texts::kLoadTamarik);
}

void frmSendRuntimeToDevice::SendRuntimeToDevice(const std::string& DeviceName) {
    Procedure here{errors_, "frmSendRuntimeToDevice.SendRuntimeToDevice"};
    run_.begin(DeviceName);
    here([&] { Load(); });
    runStarted_ = false;
    here([&] { ShowModal(); });
}

} // namespace fernwick
