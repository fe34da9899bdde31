// The deployment driver: everything before and after the run.
#include "Add-in/deploy/frmSendToDevice.h"
#include "Add-in/deploy/deploy_texts.h"

namespace fernwick {

void frmSendToDevice::SendProjectToDevice(const QLProject& WorkingProject, bool MakePackageMode,
                                          const std::string& DeviceName) {
    Procedure here{use_.errors, location("SendProjectToDevice")};
    lastResult_.reset();
    here([&] { Load(); });
    workingProject_ = WorkingProject;
    makePackageMode_ = MakePackageMode;
    deviceName_ = DeviceName;
    const auto project = here.value([&] { return WorkingProject->VBProject(); });
    if (!readyToSend(here, project)) {
        here([&] { Unload(); });
        return;
    }
    here([&] { Caption(caption(project)); });
    runStarted_ = false;
    pipeClassName_ = use_.devices.GetPipeNameForDevice(DeviceName);
    here([&] { ShowModal(); });
    showOutcome(project);
}

bool frmSendToDevice::readyToSend(Procedure& here, const Project& project) {
    if (IsCompiledImageCurrent(workingProject_)) {
        deploy_.messages.ClearProjectCompileErrors(project);
        return deploy_.validate.ValidateProject(project, deviceName_);
    }
    switch (askToCompile(here)) {
    case vbYes:
        return deploy_.compile.CompileProject(project) && deploy_.validate.ValidateProject(project, deviceName_);
    case vbNo: return sendOldImage(here, project);
    default: return false;
    }
}

/// Yes without a question where the user doesn't want to be asked.
int frmSendToDevice::askToCompile(Procedure& here) {
    if (!deploy_.prefs.GetQuinloftCompileWarning()) return vbYes;
    auto& question = deploy_.compileWarning;
    here([&] { question.Load(); });
    question.lblWarning.Caption(deploy_texts::kNotCurrent);
    question.Caption(deploy_texts::kTitle);
    here([&] { question.ShowModal(); });
    const int answer = question.Result;
    here([&] { question.Unload(); });
    return answer;
}

/// The old image is not validated: the user sends it on his own responsibility.
bool frmSendToDevice::sendOldImage(Procedure& here, const Project& project) {
    const auto refused = [&] {
        return user_.ask(Question::DeployWithErrors, deploy_texts::kStillDeploy,
                         vbYesNo + vbQuestion + vbDefaultButton2, deploy_texts::kTitle) != vbYes;
    };
    if (deploy_.messages.NumProjectCompileErrors(project) >= 1 && here.test(refused)) return false;
    deploy_.messages.ClearProjectCompileErrors(project);
    return true;
}

std::string frmSendToDevice::caption(const Project& project) const {
    using namespace deploy_texts;
    return makePackageMode_ ? kCreating + project->Name() + kDevicePackage
                            : kUploading + project->Name() + kUploadingEnd;
}

/// The words are those of a compile, whatever was made of it.
void frmSendToDevice::showOutcome(const Project& project) {
    if (deploy_.messages.NumProjectCompileErrors(project) != 0)
        return deploy_.messages.ShowProjectCompileErrors(project, true);
    std::string success = build_texts::Outcome{}.success, warning, failure;
    deploy_.messages.ProjectStatusText(success, warning, failure);
}

void frmSendToDevice::Form_Unload() {
    (void)basic::attempt([&] { deleteTempIcon(); });
    workingProject_ = nullptr;
    PipeForm::Form_Unload();
}

} // namespace fernwick
