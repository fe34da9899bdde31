#include "Add-in/build/frmValidate.h"
#include "Add-in/build/messages/build_texts.h"
#include <fmt/format.h>

namespace fernwick {

frmValidate::frmValidate(const ValidationServices& services)
    : Form(services.platform.interaction), services_(services) {
    ControlBox = false;
}

bool frmValidate::ValidateProject(const Project& project, const std::string& deviceKey) {
    using namespace fmt::literals;
    Procedure here{services_.errors, "frmValidate.ValidateProject"};
    here([&] { Load(); });
    project_ = project;
    deviceKey_ = deviceKey;
    qlProject_ = basic::make<clsQLProject>(services_.projectServices);
    qlProject_->VBProject(project);
    here([&] { Caption(fmt::format(build_texts::kValidating, "project"_a = project->Name())); });
    activated_ = false;
    validationGood_ = false;
    here([&] { ShowModal(); });
    return validationGood_;
}

/// The whole run. A later Activate must not start a second one.
void frmValidate::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    Procedure here{services_.errors, "frmValidate.Form_Activate"};
    startAnimation(here);
    validationGood_ = true;
    if (services_.compile.readyForValidation(project_))
        validate(here);
    else
        validationGood_ = false;
    if (!validationGood_) {
        build_texts::Outcome outcome;
        services_.messages.ProjectStatusText(outcome.success, outcome.warning, outcome.failure);
    }
    finish(here);
}

void frmValidate::startAnimation(Procedure& here) {
    MousePointer(vbHourglass);
    failedImg.Visible(false);
    finishedImg.Visible(true);
    aniValidate.Visible(true);
    here([&] { aniValidate.Open(services_.install.installed("VB TOOLKIT\\BIN\\QLVALIDATE.AVI")); });
    here([&] { aniValidate.Play(Animation::kForever); });
    here([&] { services_.platform.loop.DoEvents(); });
}

/// The files are saved even if errors were found.
void frmValidate::validate(Procedure& here) {
    if (here.test([&] { return project_->VBComponents()->Count() > 0; })) {
        here([&] { prgbarUpdate.start(std::size_t(project_->VBComponents()->Count())); });
        if (qlProject_->ScanReferences()) validationGood_ = ScanReferences(project_);
    }
    here([&] { qlProject_->SaveFiles(); });
}

void frmValidate::finish(Procedure& here) {
    aniValidate.Stop();
    MousePointer(vbDefault);
    aniValidate.Visible(false);
    if (validationGood_) {
        finishedImg.Visible(true);
    } else {
        failedImg.Visible(true);
        services_.messages.ShowProjectCompileErrors(project_, true);
    }
    Refresh();
    AddToProgress(build_texts::kValidationFinished);
    here([&] { Unload(); });
}

void frmValidate::Form_Unload() {
    project_ = nullptr;
    qlProject_ = nullptr;
}

void frmValidate::AddToProgress(const std::string& text) {
    Procedure here{services_.errors, "frmValidate.AddToProgress"};
    stsUpdate.SimpleText(text);
    stsUpdate.Refresh();
    here([&] { services_.platform.loop.DoEvents(); });
}

void frmValidate::ShowValidationWarning(const Project& project, const std::string& message, const std::string& fileName,
                                        std::int32_t line, std::int32_t errorNumber) {
    services_.messages.AddProjectCompileWarning(project, message, fileName, line, errorNumber);
    services_.messages.ShowProjectCompileErrors(project, true);
}

void frmValidate::ShowValidationError(const Project& project, const std::string& message, const std::string& fileName,
                                      std::int32_t line, std::int32_t errorNumber) {
    services_.messages.AddProjectCompileError(project, message, fileName, line, errorNumber);
    services_.messages.ShowProjectCompileErrors(project, true);
}

} // namespace fernwick
