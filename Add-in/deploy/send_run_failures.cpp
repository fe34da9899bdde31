// How a run fails, and what the user is shown.
#include "Add-in/deploy/PipeForm.h"
#include "Add-in/deploy/deploy_texts.h"
#include "Add-in/deploy/send_run.h"

namespace fernwick {

void SendRun::generalFailure(const basic::ErrObject& error) {
    dialog_.MousePointer(vbDefault);
    dialog_.AddToProgress(runErrorLine(error));
    deleteTempIcon();
    pipe_ = nullptr;
    dialog_.showEnd(dialog_.failedImg);
    user_.MsgBox(deploy_texts::kNotDeployedSeeMessages, vbCritical, deploy_texts::kNoTitle);
    showHostMessages();
    dialog_.Unload();
}

/// The same text for every reason, because the user has been shown the reason already.
void SendRun::missingFiles() {
    dialog_.MousePointer(vbDefault);
    dialog_.AddToProgress(deploy_texts::kMissingFiles);
    pipe_ = nullptr;
    dialog_.showEnd(dialog_.failedImg);
    user_.MsgBox(deploy_texts::kMissingFilesBox, vbCritical, deploy_texts::kTitle);
    dialog_.Unload();
}

/// The pointer and the animation disappear with the form.
void SendRun::validationFailed() {
    std::string success = makePackageMode_ ? deploy_texts::kPackageSucceeded : deploy_texts::kDeploySucceeded;
    std::string warning = makePackageMode_ ? build_texts::kSucceededWithWarnings : deploy_texts::kDeployWithWarnings;
    std::string failure = build_texts::kErrorsToFix;
    services_.messages.ProjectStatusText(success, warning, failure);
    user_.MsgBox(deploy_texts::kValidationFailed, vbCritical, deploy_texts::kValidationFailedTitle);
    dialog_.Unload();
}

/// There is no folder for the package.
void SendRun::userCanceled() {
    dialog_.MousePointer(vbDefault);
    dialog_.AddToProgress(deploy_texts::kUserCanceled);
    deleteTempIcon();
    pipe_ = nullptr;
    dialog_.showEnd(dialog_.failedImg);
}

void SendRun::packageFailed() {
    pipe_ = nullptr;
    dialog_.aniSend.Stop();
    std::string success = deploy_texts::kPackageSucceeded;
    std::string warning = deploy_texts::kDeployWithWarnings;
    std::string failure = build_texts::kErrorsToFix;
    services_.messages.ProjectStatusText(success, warning, failure);
    boxOfFailure(deploy_texts::kNoPackageSeeMessages, deploy_texts::kNoPackage);
}

void SendRun::deploymentFailed() {
    pipe_ = nullptr;
    dialog_.aniSend.Stop();
    boxOfFailure(deploy_texts::kNotDeployedSeeMessages, deploy_texts::kNotDeployed);
}

void SendRun::boxOfFailure(const char* seeMessages, const char* otherwise) {
    const bool hasMessages = services_.messages.errorCount() > 0;
    user_.MsgBox(hasMessages ? seeMessages : otherwise, vbCritical, deploy_texts::kNoTitle);
    if (hasMessages) showHostMessages();
}

void SendRun::showHostMessages() {
    services_.messages.ShowProjectCompileErrors(services_.addIn.gVBInstance->ActiveVBProject(), false);
}

void SendRun::deleteTempIcon() {
    auto& files = pipeServices_.platform.files;
    if (files.FileExists(tempIconFile_)) files.DeleteFile(tempIconFile_, true);
    tempIconFile_.clear();
}

} // namespace fernwick
