#include "Add-in/build/compile_run.h"
#include "Add-in/build/compiler_input.h"
#include "Add-in/build/frmCompile.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"
#include <fmt/format.h>

namespace fernwick {

using namespace fmt::literals;

CompileRun::CompileRun(const CompileServices& services, CompilePermission& permission, frmCompile& dialog)
    : services_(services),
      permission_(permission),
      dialog_(dialog),
      user_(services.platform.interaction),
      steps_(services.errors, services.projects, services.processes),
      lineCounts_(services.platform.files) {}

void CompileRun::begin(const Project& project, const QLProject& qlProject) {
    project_ = project;
    qlProject_ = qlProject;
    succeeded_ = false;
}

void CompileRun::run(Procedure& here) {
    dialog_.MousePointer(vbHourglass);
    here([&] { services_.platform.loop.DoEvents(); });
    if (!permission_.canCompile(project_)) {
        dialog_.failedImg.Visible(true);
        return finish(here);
    }
    if (!createCompiler()) return;

    succeeded_ = false;
    startAnimation(here);
    notifyReadOnly(here);
    here([&] { Compiler.source()->Reset(); });
    tavletFileDependencies_.clear();
    componentDependencies_.clear();
    CompilerInput input{services_, Compiler};
    input.pass(here, project_);
    services_.messages.ClearProjectCompileErrors(project_);
    if (!preStepsAllow(here)) return finish(here);
    input.SendAppInfoToCompiler(qlProject_);

    const bool built = here.value([&] { return Compiler.source()->Build(); });
    here([&] { Compiler.source()->Reset(); });
    if (built) {
        recordDependencies(here);
        runPostSteps(here);
    }
    build_texts::Outcome outcome;
    services_.messages.ProjectStatusText(outcome.success, outcome.warning, outcome.failure);
    finish(here);
}

bool CompileRun::createCompiler() {
    basic::Suppressed quietly;
    quietly([&] {
        const auto factory = services_.platform.classes.CreateObject("QLToolkit.CompilerFactory");
        compilerFactory_ = basic::cast<qltoolkit::CompilerFactory>(factory);
    });
    quietly([&] { Compiler = compilerFactory_->CreateCompiler(); });
    if (quietly.Err.Number == 0) return true;
    reportMissingTools(quietly);
    return false;
}

/// Reports that the compiler could not be created. Unloading the dialog releases the factory.
void CompileRun::reportMissingTools(basic::Suppressed& quietly) {
    quietly.Err.Clear();
    succeeded_ = false;
    const auto& address = services_.platform.app.SupportWebAddress;
    quietly([&] {
        user_.MsgBox(fmt::format(build_texts::kToolsMissing, "address"_a = address), vbCritical, build_texts::kTitle);
    });
    services_.messages.AddProjectCompileError(project_,
                                              fmt::format(build_texts::kToolsMissingMessage, "address"_a = address), "",
                                              0, message_numbers::kToolsMissing);
    quietly([&] { dialog_.Unload(); });
}

void CompileRun::startAnimation(Procedure& here) {
    dialog_.aniCompile.Visible(true);
    here([&] { dialog_.aniCompile.Open(services_.install.installed("VB TOOLKIT\\BIN\\QLCOMPILE.AVI")); });
    here([&] { dialog_.aniCompile.Play(Animation::kForever); });
    dialog_.Refresh();
    here([&] { services_.platform.loop.DoEvents(); });
}

void CompileRun::notifyReadOnly(Procedure& here) {
    if (here.test([&] { return projectFileIsReadOnly(); }))
        here([&] {
            user_.MsgBox(fmt::format(build_texts::kReadOnlyProject, "project"_a = project_->Name()), vbInformation,
                         build_texts::kTitle);
        });
}

bool CompileRun::projectFileIsReadOnly() const {
    return (services_.platform.files.GetAttributes(project_->FileName()) & ReadOnlyAttribute) != 0;
}

bool CompileRun::preStepsAllow(Procedure& here) {
    if (steps_.RunPreCompileSteps(project_)) return true;
    return !here.test([&] {
        return user_.ask(Question::FailedStep, build_texts::kPreStepsFailed, vbInformation + vbYesNo,
                         build_texts::kTitle) == vbNo;
    });
}

void CompileRun::recordDependencies(Procedure& here) {
    const auto fontDependencies = services_.dependencies.ScanProjectForFontDependencies(qlProject_);
    here([&] { qlProject_->WriteTavletFileDependencies(tavletFileDependencies_); });
    here([&] { qlProject_->WriteComponentDependencies(componentDependencies_); });
    here([&] { qlProject_->WriteProjectFontDependencies(fontDependencies); });
    if (here.test([&] { return !projectFileIsReadOnly(); })) here([&] { project_->SaveAs(project_->FileName()); });
}

void CompileRun::runPostSteps(Procedure& here) {
    dialog_.AddToProgress(build_texts::kRunningPostSteps);
    if (!steps_.RunPostCompileSteps(project_)) here([&] { box(build_texts::kPostStepsFailed, vbInformation); });
}

void CompileRun::finish(Procedure& here) {
    dialog_.MousePointer(vbDefault);
    compilerFactory_ = nullptr;
    Compiler = nullptr;
    here([&] { dialog_.Unload(); });
}

void CompileRun::release() {
    compilerFactory_ = nullptr;
    Compiler = nullptr;
    project_ = nullptr;
    qlProject_ = nullptr;
    lineCounts_.forget();
}

int CompileRun::box(const std::string& text, int buttons) { return user_.MsgBox(text, buttons, build_texts::kTitle); }

} // namespace fernwick
