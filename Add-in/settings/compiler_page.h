#pragma once
// The page "Compiler Settings": the steps around a compile, and the check of references.
#include "Add-in/platform/frame.h"
#include "Add-in/settings/step_list.h"

namespace fernwick {

class CompilerPage {
public:
    CompilerPage(Form* form, const SettingsServices& services, const basic::Ref<clsQLProject>& project);

    Frame fraCompilerOptions;
    StepList pre, post;
    CheckBox chkReferenceChecking;
    CommandButton cmdRefOffHelp;
    CheckBox chkTrustFolder;

    void SetupCompilerOptionsFrame();
    void save();

private:
    void showTrust(Procedure& here);
    void saveTrust(Procedure& here);
    void SavePreBuildSteps();
    void SavePostBuildSteps();
    void cmdRefOffHelp_Click();
    std::string folder() const;

    const SettingsServices& services_;
    TrustedFolders trusted_;
    /// The dialog's.
    const basic::Ref<clsQLProject>& project_;
};

} // namespace fernwick
