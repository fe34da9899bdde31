#include "Add-in/settings/compiler_page.h"
#include "Add-in/settings/setting_tip.h"
#include "Add-in/settings/settings_texts.h"

namespace fernwick {

using namespace settings_texts;

namespace {

constexpr char kGuide[] = "VB Toolkit\\doc\\Quinloft_AddIn_Guide.chm";
constexpr char kCompilerPage[] = "::/Quinloft_AddIn_Guide_Fernwick Settings_Setting Compiler Settings.html";

} // namespace

CompilerPage::CompilerPage(Form* form, const SettingsServices& services, const basic::Ref<clsQLProject>& project)
    : fraCompilerOptions(form, "fraCompilerOptions", false),
      pre(form, services, project, "Pre"),
      post(form, services, project, "Post"),
      chkReferenceChecking(form, "chkReferenceChecking", kReferenceChecking),
      cmdRefOffHelp(form, "cmdRefOffHelp", "Help", this, &CompilerPage::cmdRefOffHelp_Click),
      chkTrustFolder(form, "chkTrustFolder", kTrustFolder),
      services_(services),
      trusted_(services.platform.registry),
      project_(project) {}

void CompilerPage::SetupCompilerOptionsFrame() {
    Procedure here{services_.errors, "frmQuinloftSettings.SetupCompilerOptionsFrame"};
    here([&] { chkReferenceChecking.Value(project_->ScanReferences() ? 0 : 1); });
    Array<std::string> before, after;
    here([&] {
        if (project_->PostCompileStepCount() >= 1) (void)project_->GetPostCompileSteps(after);
    });
    here([&] {
        if (project_->PreCompileStepCount() >= 1) (void)project_->GetPreCompileSteps(before);
    });
    here([&] { post.show(after); });
    here([&] { pre.show(before); });
    chkReferenceChecking.ToolTipText(settingTip(*project_, "ScanReferences"));
    pre.lstSteps.ToolTipText(settingTip(*project_, "PreCompileSteps"));
    post.lstSteps.ToolTipText(settingTip(*project_, "PostCompileSteps"));
    showTrust(here);
}

/// As the permission to run a step is looked up.
std::string CompilerPage::folder() const {
    const auto path = project_->ProjectPath();
    return path.empty() ? path : services_.platform.files.Canonical(path);
}

void CompilerPage::showTrust(Procedure& here) {
    const auto path = here.value([&] { return folder(); });
    chkTrustFolder.Enabled(!path.empty());
    chkTrustFolder.ToolTipText(path.empty() ? kTrustNeedsSaving : kTrustFolderTip);
    here([&] { chkTrustFolder.Value(!path.empty() && trusted_.holds(path) ? 1 : 0); });
}

void CompilerPage::saveTrust(Procedure& here) {
    here([&] {
        const auto path = folder();
        const bool trust = chkTrustFolder.Value() == 1;
        if (path.empty() || trust == trusted_.holds(path)) return;
        const bool stored = trust ? trusted_.add(path) : trusted_.remove(path);
        if (!stored) services_.platform.interaction.MsgBox(kTrustNotStored, vbExclamation, kTitle);
    });
}

void CompilerPage::save() {
    SavePreBuildSteps();
    SavePostBuildSteps();
    Procedure here{services_.errors, "frmQuinloftSettings.applyChanges"};
    here([&] { project_->ScanReferences(chkReferenceChecking.Value() != 1); });
    saveTrust(here);
}

void CompilerPage::SavePreBuildSteps() {
    Procedure here{services_.errors, "frmQuinloftSettings.SavePreBuildSteps"};
    here([&] {
        const auto steps = pre.steps();
        steps.isAllocated() ? project_->SetPreCompileSteps(steps) : project_->ZeroPreCompileSteps();
    });
}

void CompilerPage::SavePostBuildSteps() {
    Procedure here{services_.errors, "frmQuinloftSettings.SavePostBuildSteps"};
    here([&] {
        const auto steps = post.steps();
        steps.isAllocated() ? project_->SetPostCompileSteps(steps) : project_->ZeroPostCompileSteps();
    });
}

void CompilerPage::cmdRefOffHelp_Click() {
    Procedure here{services_.errors, "frmQuinloftSettings.cmdRefOffHelp_Click"};
    const auto guide = here.value([&] { return services_.install.installed(kGuide); });
    if (here.value([&] { return services_.platform.files.FileExists(guide); }))
        here([&] { services_.platform.shell.Start("Hh.exe ms-its:" + guide + kCompilerPage); });
    else
        here([&] { services_.platform.interaction.MsgBox(kNoCompilerHelp, vbOKOnly, kTitle); });
}

} // namespace fernwick
