#include "Add-in/deploy/runtime_run.h"
#include "Add-in/deploy/PipeForm.h"
#include "Add-in/deploy/deploy_texts.h"

namespace fernwick {

void RuntimeRun::begin(const std::string& deviceName) {
    lastResult_.reset();
    deviceName_ = deviceName;
}

void RuntimeRun::run() {
    auto error =
        basic::attempt([&] { showBeginning("VB TOOLKIT\\BIN\\QLUPLOAD.AVI", deploy_texts::kCreatingConnection); });
    if (error.Number == 0) error = createPipe(pipeServices_.devices.GetPipeNameForDevice(deviceName_));
    if (error.Number != 0) return fail(error);

    Procedure here{pipeServices_.errors, location("Form_Activate")};
    dialog_.AddToProgress(deploy_texts::kGatheringList);
    here([&] { pipe_->SetEventSink(*this); });
    lastResult_ = false;
    here([&] { pipe_->SendRuntime(deviceName_); });
    pipe_ = nullptr;
    dialog_.MousePointer(vbDefault);
    here([&] { dialog_.Unload(); });
}

void RuntimeRun::fail(const basic::ErrObject& error) {
    dialog_.MousePointer(vbDefault);
    dialog_.AddToProgress(runErrorLine(error));
    pipe_ = nullptr;
    dialog_.showEnd(dialog_.failedImg);
    dialog_.Unload();
}

void RuntimeRun::SendComplete() {
    Procedure here{pipeServices_.errors, location("IQLPipeEvents_SendComplete")};
    pipe_ = nullptr;
    here([&] { pipeServices_.platform.loop.DoEvents(); });
    dialog_.AddToProgress(deploy_texts::kUploadComplete);
    dialog_.showEnd(dialog_.finishedImg);
    lastResult_ = !dialog_.failedImg.Visible();
}

void RuntimeRun::SendError(std::int32_t errorNumber, const std::string& message) {
    Procedure here{pipeServices_.errors, location("IQLPipeEvents_SendError")};
    const auto line = pipeErrorLine(errorNumber, message);
    pipe_ = nullptr;
    dialog_.AddToProgress(line);
    dialog_.showEnd(dialog_.failedImg);
    lastResult_ = false;
    here([&] { pipeServices_.platform.interaction.MsgBox(line, vbCritical, deploy_texts::kTitle); });
}

} // namespace fernwick
