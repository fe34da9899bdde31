#include "Add-in/deploy/frmSendToDevice.h"
#include "Add-in/deploy/deploy_texts.h"
#include <fmt/format.h>

namespace fernwick {

frmSendToDevice::frmSendToDevice(const PipeServices& pipes, const DeployServices& services)
    : PipeForm(pipes.platform.interaction, run_),
      errors_(pipes.errors),
      messages_(services.messages),
      image_(pipes.errors, pipes.platform.files, services.compile),
      permission_(pipes.platform.interaction, services, image_),
      run_(pipes, services, *this) {}

void frmSendToDevice::SendProjectToDevice(const QLProject& WorkingProject, bool MakePackageMode,
                                          const std::string& DeviceName) {
    using namespace fmt::literals;
    Procedure here{errors_, "frmSendToDevice.SendProjectToDevice"};
    run_.forgetResult();
    here([&] { Load(); });
    run_.begin(WorkingProject, MakePackageMode, DeviceName);
    const auto project = here.value([&] { return WorkingProject->VBProject(); });
    if (!permission_.readyToSend(here, WorkingProject, project, DeviceName)) {
        here([&] { Unload(); });
        return;
    }
    const auto& caption = MakePackageMode ? deploy_texts::kCreating : deploy_texts::kUploading;
    here([&] { Caption(fmt::format(fmt::runtime(caption), "project"_a = project->Name())); });
    runStarted_ = false;
    run_.choosePipe(DeviceName);
    here([&] { ShowModal(); });
    showOutcome(project);
}

/// The texts are those of a compile, whether the project was sent or packaged.
void frmSendToDevice::showOutcome(const Project& project) {
    if (messages_.NumProjectCompileErrors(project) != 0) return messages_.ShowProjectCompileErrors(project, true);
    std::string success = build_texts::Outcome{}.success, warning, failure;
    messages_.ProjectStatusText(success, warning, failure);
}

} // namespace fernwick
