#include "Add-in/deploy/send_permission.h"
#include "Add-in/deploy/deploy_texts.h"

namespace fernwick {

bool SendPermission::readyToSend(Procedure& here, const QLProject& qlProject, const Project& project,
                                 const std::string& deviceName) {
    if (image_.IsCompiledImageCurrent(qlProject)) {
        services_.messages.ClearProjectCompileErrors(project);
        return services_.validate.ValidateProject(project, deviceName);
    }
    switch (askToCompile(here)) {
    case vbYes:
        return services_.compile.CompileProject(project) && services_.validate.ValidateProject(project, deviceName);
    case vbNo: return sendOldImage(here, project);
    default: return false;
    }
}

/// Yes without a question if the user does not want to be asked.
int SendPermission::askToCompile(Procedure& here) {
    if (!services_.prefs.GetQuinloftCompileWarning()) return vbYes;
    auto& question = services_.compileWarning;
    here([&] { question.Load(); });
    question.lblWarning.Caption(deploy_texts::kNotCurrent);
    question.Caption(deploy_texts::kTitle);
    here([&] { question.ShowModal(); });
    const int answer = question.Result;
    here([&] { question.Unload(); });
    return answer;
}

/// An outdated image is not validated: the user chose to send it anyway.
bool SendPermission::sendOldImage(Procedure& here, const Project& project) {
    const auto refused = [&] {
        return user_.ask(Question::DeployWithErrors, deploy_texts::kStillDeploy,
                         vbYesNo + vbQuestion + vbDefaultButton2, deploy_texts::kTitle) != vbYes;
    };
    if (services_.messages.NumProjectCompileErrors(project) >= 1 && here.test(refused)) return false;
    services_.messages.ClearProjectCompileErrors(project);
    return true;
}

} // namespace fernwick
