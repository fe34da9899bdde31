#include "Add-in/deploy/frmSendRuntimeToDevice.h"
#include "Add-in/deploy/deploy_texts.h"

namespace fernwick {

frmSendRuntimeToDevice::frmSendRuntimeToDevice(const PipeServices& services) : PipeForm(services) {
    Caption.design(deploy_texts::kLoadTamarik);
}

void frmSendRuntimeToDevice::SendRuntimeToDevice(const std::string& DeviceName) {
    Procedure here{use_.errors, location("SendRuntimeToDevice")};
    lastResult_.reset();
    here([&] { Load(); });
    runStarted_ = false;
    deviceName_ = DeviceName;
    here([&] { ShowModal(); });
}

void frmSendRuntimeToDevice::Form_Activate() {
    if (runStarted_) return;
    auto error = basic::attempt([&] { beginRun("VB TOOLKIT\\BIN\\QLUPLOAD.AVI", deploy_texts::kCreatingConnection); });
    if (error.Number == 0) error = createPipe(use_.devices.GetPipeNameForDevice(deviceName_));
    if (error.Number != 0) return fail(error);

    Procedure here{use_.errors, location("Form_Activate")};
    AddToProgress(deploy_texts::kGatheringList);
    here([&] { pipe_->SetEventSink(*this); });
    lastResult_ = false;
    here([&] { pipe_->SendRuntime(deviceName_); });
    pipe_ = nullptr;
    MousePointer(vbDefault);
    here([&] { Unload(); });
}

void frmSendRuntimeToDevice::fail(const basic::ErrObject& error) {
    MousePointer(vbDefault);
    AddToProgress(runErrorLine(error));
    pipe_ = nullptr;
    showEnd(failedImg);
    Unload();
}

void frmSendRuntimeToDevice::SendComplete() {
    Procedure here{use_.errors, location("IQLPipeEvents_SendComplete")};
    pipe_ = nullptr;
    here([&] { use_.platform.loop.DoEvents(); });
    AddToProgress(deploy_texts::kUploadComplete);
    showEnd(finishedImg);
    lastResult_ = !failedImg.Visible();
}

void frmSendRuntimeToDevice::SendError(std::int32_t errorNumber, const std::string& message) {
    Procedure here{use_.errors, location("IQLPipeEvents_SendError")};
    const auto line = pipeErrorLine(errorNumber, message);
    pipe_ = nullptr;
    AddToProgress(line);
    showEnd(failedImg);
    lastResult_ = false;
    here([&] { user_.MsgBox(line, vbCritical, deploy_texts::kTitle); });
}

} // namespace fernwick
