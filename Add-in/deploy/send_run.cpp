// The run: from the pipe's creation to the end of its call.
#include "Add-in/deploy/deploy_texts.h"
#include "Add-in/deploy/frmSendToDevice.h"

namespace fernwick {

/// An error before the pipe stands ends in the failure that all share. From then on there is no trap: what the pipe
/// lets out ends the form, and the driver reports it.
void frmSendToDevice::Form_Activate() {
    if (runStarted_) return;
    const char* animation = makePackageMode_ ? "VB TOOLKIT\\BIN\\QLCOMPILE.AVI" : "VB TOOLKIT\\BIN\\QLUPLOAD.AVI";
    auto error = basic::attempt([&] { beginRun(animation, deploy_texts::kConnectingPipe); });
    if (error.Number == 0) error = createPipe(pipeClassName_);
    if (error.Number != 0) return generalFailure(error);
    send();
}

void frmSendToDevice::send() {
    AddToProgress(deploy_texts::kGatheringList);
    pipe_->SetEventSink(*this);
    AddToProgress(deploy_texts::kScanningDependencies);
    const auto dependencies = readDependencies();
    const std::string path = use_.platform.files.WithSeparator(workingProject_->ProjectPath());
    const std::string name = deploy_.projects.gCurrentProject->Name();

    Names files, resources;
    if (!CreateResourceList(name, path, files, resources, dependencies)) return missingFiles();
    if (!ValidateForDevicePipe({files, resources})) return validationFailed();
    tempIconFile_ = workingProject_->GetTempIcon();
    transfer(path, {files, resources});
    commonEnd();
}

/// The run goes on with what the list holds, whatever the user answers.
tResourceList frmSendToDevice::readDependencies() {
    const auto project = workingProject_->VBProject();
    const auto dependencies = deploy_.dependencies.ReadProjectDependencies(project);
    if (deploy_.dependencies.ValidateDependencyList(project, dependencies)) return dependencies;
    if (user_.ask(Question::EditDependencies, deploy_texts::kInvalidDependencies, vbYesNo + vbQuestion,
                  deploy_texts::kTitle) != vbYes)
        return dependencies;
    user_.SetCursor(vbHourglass);
    deploy_.settings.ShowQuinloftSettings(project, "Dependencies", false);
    return deploy_.dependencies.ReadProjectDependencies(project);
}

/// A pipe without a validator takes nothing.
bool frmSendToDevice::ValidateForDevicePipe(const qlpipe::ProjectFiles& files) {
    basic::Ref<qlpipe::IQLPipeValidation> validator;
    const auto created = basic::attempt([&] {
        const auto object = use_.platform.classes.CreateObject(pipeClassName_ + ".Validation");
        validator = basic::cast<qlpipe::IQLPipeValidation>(object);
    });
    if (created.Number != 0) return false;
    bool accepted = false;
    basic::Suppressed quietly;
    quietly([&] { validator->SetEventSink(*this); });
    quietly([&] { accepted = validator->ValidateFiles(workingProject_->VBProject(), files); });
    return accepted;
}

void frmSendToDevice::transfer(const std::string& projectPath, const qlpipe::ProjectFiles& files) {
    if (makePackageMode_)
        makePackage(projectPath, files);
    else
        sendProject(projectPath, files);
}

void frmSendToDevice::makePackage(const std::string& projectPath, const qlpipe::ProjectFiles& files) {
    std::string saveLocation = projectPath;
    if (saveLocation.empty()) return userCanceled();
    const auto project = workingProject_->VBProject();
    const auto info = application(projectPath);
    lastResult_ = false;
    lastResult_ = pipe_->MakePackage(deviceName_, project, files, info, saveLocation);
    if (!*lastResult_) return packageFailed();
    user_.MsgBox(deploy_texts::kPackageMade, vbInformation, deploy_texts::kNoTitle);
}

void frmSendToDevice::sendProject(const std::string& projectPath, const qlpipe::ProjectFiles& files) {
    const auto project = workingProject_->VBProject();
    const auto info = application(projectPath);
    lastResult_ = false;
    lastResult_ = pipe_->SendProject(deviceName_, project, files, info);
    if (!*lastResult_) deploymentFailed();
}

qlpipe::ApplicationInfo frmSendToDevice::application(const std::string& projectPath) const {
    return {.ProjectPath = projectPath,
            .ProjectName = workingProject_->ProjectName(),
            .TempIconFile = tempIconFile_,
            .DisplayName = workingProject_->DisplayName(),
            .Version = workingProject_->version()};
}

void frmSendToDevice::commonEnd() {
    (void)basic::attempt([&] { deleteTempIcon(); });
    MousePointer(vbDefault);
    Unload();
}

} // namespace fernwick
