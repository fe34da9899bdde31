// What the pipe and its validator tell while they work.
#include "Add-in/deploy/deploy_texts.h"
#include "Add-in/deploy/frmSendToDevice.h"

namespace fernwick {

namespace {
/// Keeps a pipe's warnings apart from the compiler's; its errors have numbers of their own.
constexpr std::int32_t kWarningOffset = 3000;
} // namespace

void frmSendToDevice::SendComplete() {
    Procedure here{use_.errors, location("IQLPipeEvents_SendComplete")};
    pipe_ = nullptr;
    here([&] { use_.platform.loop.DoEvents(); });
    AddToProgress(makePackageMode_ ? deploy_texts::kCreateComplete : deploy_texts::kUploadComplete);
    showEnd(finishedImg);
}

void frmSendToDevice::SendError(std::int32_t errorNumber, const std::string& message) {
    Procedure here{use_.errors, location("IQLPipeEvents_SendError")};
    pipe_ = nullptr;
    AddToProgress(pipeErrorLine(errorNumber, message));
    showEnd(failedImg);
    const auto project = here.value([&] { return workingProject_->VBProject(); });
    deploy_.messages.AddProjectCompileError(project, message, "", 0, errorNumber);
    deploy_.messages.ShowProjectCompileErrors(project, true);
}

void frmSendToDevice::SendWarning(const std::string& message, const std::string& source, std::int32_t line,
                                  std::int32_t warningNumber) {
    Procedure here{use_.errors, location("IQLPipeEvents_SendWarning")};
    const auto project = here.value([&] { return workingProject_->VBProject(); });
    deploy_.messages.AddProjectCompileWarning(project, message, source, line, warningNumber + kWarningOffset);
    deploy_.messages.ShowProjectCompileErrors(project, true);
}

} // namespace fernwick
