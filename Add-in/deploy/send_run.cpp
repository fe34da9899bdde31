#include "Add-in/deploy/send_run.h"
#include "Add-in/deploy/PipeForm.h"
#include "Add-in/deploy/deploy_texts.h"
#include "Add-in/deploy/package_contents.h"

namespace fernwick {

void SendRun::begin(const QLProject& project, bool makePackage, const std::string& deviceName) {
    workingProject_ = project;
    makePackageMode_ = makePackage;
    deviceName_ = deviceName;
}

/// Reports errors before the pipe exists with generalFailure. From then on there is no trap: an error that leaves the
/// pipe ends the form, and the driver reports it.
void SendRun::run() {
    const char* animation = makePackageMode_ ? "VB TOOLKIT\\BIN\\QLCOMPILE.AVI" : "VB TOOLKIT\\BIN\\QLUPLOAD.AVI";
    auto error = basic::attempt([&] { showBeginning(animation, deploy_texts::kConnectingPipe); });
    if (error.Number == 0) error = createPipe(pipeClassName_);
    if (error.Number != 0) return generalFailure(error);
    send();
}

void SendRun::send() {
    dialog_.AddToProgress(deploy_texts::kGatheringList);
    pipe_->SetEventSink(*this);
    dialog_.AddToProgress(deploy_texts::kScanningDependencies);
    const auto dependencies = readDependencies();
    const std::string path = pipeServices_.platform.files.WithSeparator(workingProject_->ProjectPath());
    const std::string name = services_.projects.gCurrentProject->Name();

    std::vector<std::string> files, resources;
    PackageContents contents{pipeServices_, services_.dependencies, workingProject_};
    if (!contents.CreateResourceList(name, path, files, resources, dependencies)) return missingFiles();
    if (!ValidateForDevicePipe({files, resources})) return validationFailed();
    tempIconFile_ = workingProject_->GetTempIcon();
    transfer(path, {files, resources});
    commonEnd();
}

/// The run continues with whatever the list holds.
tResourceList SendRun::readDependencies() {
    const auto project = workingProject_->VBProject();
    const auto dependencies = services_.dependencies.ReadProjectDependencies(project);
    if (services_.dependencies.ValidateDependencyList(project, dependencies)) return dependencies;
    if (user_.ask(Question::EditDependencies, deploy_texts::kInvalidDependencies, vbYesNo + vbQuestion,
                  deploy_texts::kTitle) != vbYes)
        return dependencies;
    user_.SetCursor(vbHourglass);
    services_.settings.ShowQuinloftSettings(project, kDependenciesPage, false);
    return services_.dependencies.ReadProjectDependencies(project);
}

/// A pipe without a validator accepts nothing. The files are judged by the device of this run, which may not be the
/// project's own.
bool SendRun::ValidateForDevicePipe(const qlpipe::ProjectFiles& files) {
    basic::Ref<qlpipe::IQLPipeValidation> validator;
    const auto created = basic::attempt([&] {
        const auto object = pipeServices_.platform.classes.CreateObject(pipeClassName_ + ".Validation");
        validator = basic::cast<qlpipe::IQLPipeValidation>(object);
    });
    if (created.Number != 0) return false;
    bool accepted = false;
    basic::Suppressed quietly;
    quietly([&] { validator->SetEventSink(*this); });
    quietly([&] { validator->SetDevice(deviceName_); });
    quietly([&] { accepted = validator->ValidateFiles(workingProject_->VBProject(), files); });
    return accepted;
}

void SendRun::transfer(const std::string& projectPath, const qlpipe::ProjectFiles& files) {
    if (makePackageMode_)
        makePackage(projectPath, files);
    else
        sendProject(projectPath, files);
}

void SendRun::makePackage(const std::string& projectPath, const qlpipe::ProjectFiles& files) {
    std::string saveLocation = projectPath;
    if (saveLocation.empty()) return userCanceled();
    const auto project = workingProject_->VBProject();
    const auto info = application(projectPath);
    lastResult_ = false;
    lastResult_ = pipe_->MakePackage(deviceName_, project, files, info, saveLocation);
    if (!*lastResult_) return packageFailed();
    user_.MsgBox(deploy_texts::kPackageMade, vbInformation, deploy_texts::kNoTitle);
}

void SendRun::sendProject(const std::string& projectPath, const qlpipe::ProjectFiles& files) {
    const auto project = workingProject_->VBProject();
    const auto info = application(projectPath);
    lastResult_ = false;
    lastResult_ = pipe_->SendProject(deviceName_, project, files, info);
    if (!*lastResult_) deploymentFailed();
}

qlpipe::ApplicationInfo SendRun::application(const std::string& projectPath) const {
    return {.ProjectPath = projectPath,
            .ProjectName = workingProject_->ProjectName(),
            .TempIconFile = tempIconFile_,
            .DisplayName = workingProject_->DisplayName(),
            .Version = workingProject_->version()};
}

void SendRun::release() {
    (void)basic::attempt([&] { deleteTempIcon(); });
    workingProject_ = nullptr;
    PipeRun::release();
}

void SendRun::commonEnd() {
    (void)basic::attempt([&] { deleteTempIcon(); });
    dialog_.MousePointer(vbDefault);
    dialog_.Unload();
}

} // namespace fernwick
