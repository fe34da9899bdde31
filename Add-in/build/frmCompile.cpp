#include "Add-in/build/frmCompile.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/messages/message_numbers.h"

namespace fernwick {

namespace {
/// Compared byte for byte with what a project was last compiled with.
constexpr char kCompilerVersion[] = "3.5.0 (0624)";
constexpr int kForEver = -1;
} // namespace

frmCompile::frmCompile(const CompileServices& services)
    : Form(services.platform.interaction), use_(services), lineCounts_(services.platform.files) {
    ControlBox = false;
}

bool frmCompile::CompileProject(const Project& project) {
    Procedure here{use_.errors, "frmCompile.CompileProject"};
    here([&] { Load(); });
    project_ = project;
    const auto qlProject = qlProject_ = use_.projects.GetQLProject(project);
    here([&] { Caption(build_texts::kCompiling + project->Name() + "..."); });
    activated_ = false;
    compileSucceeded_ = false;
    here([&] { ShowModal(); });

    const bool succeeded = compileSucceeded_;
    if (succeeded) {
        here([&] { qlProject->LastCompileVersion(kCompilerVersion); });
    } else {
        box(here, build_texts::kCompileFailed, vbCritical);
        use_.messages.ShowFirstProjectError();
    }
    return succeeded;
}

bool frmCompile::lastCompileVersionGood(const Project& project) {
    Procedure here{use_.errors, "frmCompile.lastCompileVersionGood"};
    const auto qlProject = use_.projects.GetQLProject(project);
    return here.value([&] { return qlProject->LastCompileVersion() == kCompilerVersion; });
}

/// The whole run. A later Activate, as after a message box, finds it begun.
void frmCompile::Form_Activate() {
    if (activated_) return;
    activated_ = true;
    Procedure here{use_.errors, "frmCompile.Form_Activate"};
    MousePointer(vbHourglass);
    here([&] { use_.platform.loop.DoEvents(); });
    if (!canCompile(project_)) {
        failedImg.Visible(true);
        return finish(here);
    }
    if (!createCompiler()) return;

    compileSucceeded_ = false;
    startAnimation(here);
    tellReadOnly(here);
    passInput(here);
    use_.messages.ClearProjectCompileErrors(project_);
    if (!preStepsAllow(here)) return finish(here);
    SendAppInfoToCompiler(qlProject_);

    const bool built = here.value([&] { return Compiler.source()->Build(); });
    here([&] { Compiler.source()->Reset(); });
    if (built) {
        recordDependencies(here);
        runPostSteps(here);
    }
    build_texts::Outcome outcome;
    use_.messages.ProjectStatusText(outcome.success, outcome.warning, outcome.failure);
    finish(here);
}

bool frmCompile::createCompiler() {
    basic::Suppressed quietly;
    quietly([&] {
        const auto factory = use_.platform.classes.CreateObject("QLToolkit.CompilerFactory");
        compilerFactory_ = basic::cast<qltoolkit::CompilerFactory>(factory);
    });
    quietly([&] { Compiler = compilerFactory_->CreateCompiler(); });
    if (quietly.Err.Number == 0) return true;
    reportMissingTools(quietly);
    return false;
}

/// What was created so far goes with the dialog.
void frmCompile::reportMissingTools(basic::Suppressed& quietly) {
    quietly.Err.Clear();
    compileSucceeded_ = false;
    const std::string text = std::string(build_texts::kToolsMissing) + "\r\n" + build_texts::kPleaseContact +
                             use_.platform.app.SupportWebAddress;
    quietly([&] { user_.MsgBox(text, vbCritical, build_texts::kTitle); });
    use_.messages.AddProjectCompileError(project_,
                                         build_texts::kToolsMissingMessage + use_.platform.app.SupportWebAddress, "", 0,
                                         message_numbers::kToolsMissing);
    quietly([&] { Unload(); });
}

void frmCompile::startAnimation(Procedure& here) {
    aniCompile.Visible(true);
    here([&] { aniCompile.Open(use_.install.installed("VB TOOLKIT\\BIN\\QLCOMPILE.AVI")); });
    here([&] { aniCompile.Play(kForEver); });
    Refresh();
    here([&] { use_.platform.loop.DoEvents(); });
}

void frmCompile::tellReadOnly(Procedure& here) {
    if (here.test([&] { return projectFileIsReadOnly(); }))
        here([&] {
            user_.MsgBox(project_->Name() + build_texts::kReadOnlyProject, vbInformation, build_texts::kTitle);
        });
}

bool frmCompile::projectFileIsReadOnly() const {
    return (use_.platform.files.GetAttributes(project_->FileName()) & ReadOnlyAttribute) != 0;
}

bool frmCompile::preStepsAllow(Procedure& here) {
    if (RunPreCompileSteps(project_)) return true;
    return !here.test([&] {
        return user_.ask(Question::FailedStep, build_texts::kPreStepsFailed, vbInformation + vbYesNo,
                         build_texts::kTitle) == vbNo;
    });
}

void frmCompile::recordDependencies(Procedure& here) {
    const auto fontDependencies = use_.dependencies.ScanProjectForFontDependencies(qlProject_);
    here([&] { qlProject_->WriteTavletFileDependencies(tavletFileDependencies_); });
    here([&] { qlProject_->WriteComponentDependencies(componentDependencies_); });
    here([&] { qlProject_->WriteProjectFontDependencies(fontDependencies); });
    if (here.test([&] { return !projectFileIsReadOnly(); })) here([&] { project_->SaveAs(project_->FileName()); });
}

void frmCompile::runPostSteps(Procedure& here) {
    AddToProgress(build_texts::kRunningPostSteps);
    if (!RunPostCompileSteps(project_)) box(here, build_texts::kPostStepsFailed, vbInformation);
}

void frmCompile::finish(Procedure& here) {
    MousePointer(vbDefault);
    compilerFactory_ = nullptr;
    Compiler = nullptr;
    here([&] { Unload(); });
}

void frmCompile::Form_Unload() {
    compilerFactory_ = nullptr;
    Compiler = nullptr;
    project_ = nullptr;
    qlProject_ = nullptr;
    lineCounts_.forget();
}

int frmCompile::box(Procedure& here, const std::string& text, int buttons) {
    return here.value([&] { return user_.MsgBox(text, buttons, build_texts::kTitle); });
}

} // namespace fernwick
