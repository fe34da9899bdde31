// How a run fails, and what the user is told of it.
#include "Add-in/deploy/deploy_texts.h"
#include "Add-in/deploy/frmSendToDevice.h"

namespace fernwick {

void frmSendToDevice::generalFailure(const basic::ErrObject& error) {
    MousePointer(vbDefault);
    AddToProgress(runErrorLine(error));
    deleteTempIcon();
    pipe_ = nullptr;
    showEnd(failedImg);
    user_.MsgBox(deploy_texts::kNotDeployedSeeMessages, vbCritical, deploy_texts::kNoTitle);
    showHostMessages();
    Unload();
}

/// The same words for every reason, which the user knows already.
void frmSendToDevice::missingFiles() {
    MousePointer(vbDefault);
    AddToProgress(deploy_texts::kMissingFiles);
    pipe_ = nullptr;
    showEnd(failedImg);
    user_.MsgBox(deploy_texts::kMissingFilesBox, vbCritical, deploy_texts::kTitle);
    Unload();
}

/// Pointer and animation go with the form.
void frmSendToDevice::validationFailed() {
    std::string success = makePackageMode_ ? deploy_texts::kPackageSucceeded : deploy_texts::kDeploySucceeded;
    std::string warning = makePackageMode_ ? deploy_texts::kPackageWithWarnings : deploy_texts::kDeployWithWarnings;
    std::string failure = deploy_texts::kErrorsToFix;
    deploy_.messages.ProjectStatusText(success, warning, failure);
    user_.MsgBox(deploy_texts::kValidationFailed, vbCritical, deploy_texts::kValidationFailedTitle);
    Unload();
}

/// A package without a place to go to.
void frmSendToDevice::userCanceled() {
    MousePointer(vbDefault);
    AddToProgress(deploy_texts::kUserCanceled);
    deleteTempIcon();
    pipe_ = nullptr;
    showEnd(failedImg);
}

void frmSendToDevice::packageFailed() {
    pipe_ = nullptr;
    aniSend.Stop();
    std::string success = deploy_texts::kPackageSucceeded;
    std::string warning = deploy_texts::kDeployWithWarnings;
    std::string failure = deploy_texts::kErrorsToFix;
    deploy_.messages.ProjectStatusText(success, warning, failure);
    boxOfFailure(deploy_texts::kNoPackageSeeMessages, deploy_texts::kNoPackage);
}

void frmSendToDevice::deploymentFailed() {
    pipe_ = nullptr;
    aniSend.Stop();
    boxOfFailure(deploy_texts::kNotDeployedSeeMessages, deploy_texts::kNotDeployed);
}

void frmSendToDevice::boxOfFailure(const char* seeMessages, const char* otherwise) {
    const bool hasMessages = deploy_.messages.errorCount() > 0;
    user_.MsgBox(hasMessages ? seeMessages : otherwise, vbCritical, deploy_texts::kNoTitle);
    if (hasMessages) showHostMessages();
}

void frmSendToDevice::showHostMessages() {
    deploy_.messages.ShowProjectCompileErrors(deploy_.addIn.gVBInstance->ActiveVBProject(), false);
}

void frmSendToDevice::deleteTempIcon() {
    auto& files = use_.platform.files;
    if (files.FileExists(tempIconFile_)) files.DeleteFile(tempIconFile_, true);
    tempIconFile_.clear();
}

} // namespace fernwick
