// The events of the pipe and its validator.
#include "Add-in/deploy/PipeForm.h"
#include "Add-in/deploy/deploy_texts.h"
#include "Add-in/deploy/send_run.h"

namespace fernwick {

namespace {
/// Separates the numbers of a pipe's warnings from the compiler's. Those of its errors are unique.
constexpr std::int32_t kWarningOffset = 3000;
} // namespace

void SendRun::SendComplete() {
    Procedure here{pipeServices_.errors, location("IQLPipeEvents_SendComplete")};
    pipe_ = nullptr;
    here([&] { pipeServices_.platform.loop.DoEvents(); });
    dialog_.AddToProgress(makePackageMode_ ? deploy_texts::kCreateComplete : deploy_texts::kUploadComplete);
    dialog_.showEnd(dialog_.finishedImg);
}

void SendRun::SendError(std::int32_t errorNumber, const std::string& message) {
    Procedure here{pipeServices_.errors, location("IQLPipeEvents_SendError")};
    pipe_ = nullptr;
    dialog_.AddToProgress(pipeErrorLine(errorNumber, message));
    dialog_.showEnd(dialog_.failedImg);
    const auto project = here.value([&] { return workingProject_->VBProject(); });
    services_.messages.AddProjectCompileError(project, message, "", 0, errorNumber);
    services_.messages.ShowProjectCompileErrors(project, true);
}

void SendRun::SendWarning(const std::string& message, const std::string& source, std::int32_t line,
                          std::int32_t warningNumber) {
    Procedure here{pipeServices_.errors, location("IQLPipeEvents_SendWarning")};
    const auto project = here.value([&] { return workingProject_->VBProject(); });
    services_.messages.AddProjectCompileWarning(project, message, source, line, warningNumber + kWarningOffset);
    services_.messages.ShowProjectCompileErrors(project, true);
}

} // namespace fernwick
