#pragma once
// The dialog of a compile.
#include "Add-in/build/compile_run.h"
#include "Add-in/platform/controls.h"

namespace fernwick {

/// A modal progress dialog without buttons. It compiles in its first Activate event and unloads itself.
class frmCompile : public Form {
public:
    using Project = basic::Ref<vbide::VBProject>;

    explicit frmCompile(const CompileServices& services);
    const char* typeName() const override { return "frmCompile"; }

    Animation aniCompile{this, "aniCompile"};
    StatusBar stsUpdate{this, "stsUpdate"};
    ProgressBar prgbarUpdate{this, "prgbarUpdate"};
    PictureBox finishedImg{this, "finishedImg", "finished", false};
    PictureBox failedImg{this, "failedImg", "failed", false};

    /// The only entry point for a compile. Returns true when the compiler reported success; otherwise the user has been
    /// informed.
    bool CompileProject(const Project& project);
    /// Whether a compile may proceed, after any saving that was needed.
    bool canCompile(const Project& project) { return permission_.canCompile(project); }
    /// Whether a validation may proceed, after any saving that was needed. Ignores the compiler version.
    bool readyForValidation(const Project& project) { return permission_.readyForValidation(project); }
    /// Whether the project's last good compile used this compiler version.
    bool lastCompileVersionGood(const Project& project) { return permission_.lastCompileVersionGood(project); }
    /// Whether a component of the project has unsaved changes.
    bool ProjectIsDirty(const Project& project) { return permission_.ProjectIsDirty(project); }

    void displayInfo(const std::string& text) { AddToProgress(text); }
    void displayError(const std::string& text) { AddToProgress(text); }
    /// Shows the text in the status bar, and lets the host process events.
    void AddToProgress(const std::string& text);

protected:
    void Form_Activate() override;
    void Form_GotFocus() override { Refresh(); }
    void Form_Unload() override { run_.release(); }

private:
    CompileServices services_;
    CompilePermission permission_{services_};
    CompileRun run_{services_, permission_, *this};
    bool activated_ = false;
};

} // namespace fernwick
