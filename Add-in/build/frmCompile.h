#pragma once
// The compile driver: everything around the compiler component.
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/build/line_counts.h"
#include "Add-in/build/modProcessControl.h"
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/platform/compiler.h"
#include "Add-in/platform/controls.h"
#include "Add-in/platform/with_events.h"
#include "Add-in/project/clsQLProject.h"
#include "Add-in/project/frmSaveProjectFiles.h"
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

/// What the compile driver stands on.
struct CompileServices {
    Platform& platform;
    ErrorReport& errors;
    modRegistry2& registry;
    modQLInstallInfo& install;
    modProjectHandler& projects;
    modCompileErrorManagement& messages;
    modDependencyManagement& dependencies;
    modProcessControl& processes;
    frmSaveProjectFiles& saveFiles;
    modMenuManagement& menu;
};

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

    /// The only entry for a compile. True when the compiler reported success; otherwise the user was told.
    bool CompileProject(const Project& project);
    /// Whether a compile may go on, after any saving that was needed.
    bool canCompile(const Project& project);
    /// The same decision for a validation, whatever compiler version the project was last compiled with.
    bool readyForValidation(const Project& project);
    /// Whether this compiler version made the project's last good compile.
    bool lastCompileVersionGood(const Project& project);
    /// Whether a component of the project is not saved.
    bool ProjectIsDirty(const Project& project);

    void displayInfo(const std::string& text) { AddToProgress(text); }
    void displayError(const std::string& text) { AddToProgress(text); }

protected:
    void Form_Activate() override;
    void Form_GotFocus() override { Refresh(); }
    void Form_Unload() override;

private:
    // The run
    bool createCompiler();
    void reportMissingTools(basic::Suppressed& quietly);
    void startAnimation(Procedure& here);
    void tellReadOnly(Procedure& here);
    void passInput(Procedure& here);
    void passReferences(Procedure& here);
    void passReference(const basic::Ref<vbide::Reference>& reference);
    void passComponents(Procedure& here);
    void passStartupObject(Procedure& here);
    void passConstants(Procedure& here);
    void SendAppInfoToCompiler(const basic::Ref<clsQLProject>& qlProject);
    bool preStepsAllow(Procedure& here);
    void recordDependencies(Procedure& here);
    void runPostSteps(Procedure& here);
    void finish(Procedure& here);
    bool projectFileIsReadOnly() const;

    // Before it
    bool saveForCompile(Procedure& here, const Project& project, const basic::Ref<clsQLProject>& qlProject);
    bool askToSave(Procedure& here, const Project& project, const basic::Ref<clsQLProject>& qlProject);
    bool filesHaveBeenSaved(Procedure& here, const basic::Ref<clsQLProject>& qlProject);

    // Around it
    bool RunPreCompileSteps(const Project& project);
    bool RunPostCompileSteps(const Project& project);
    bool runSteps(Procedure& here, const basic::Ref<clsQLProject>& qlProject, const Array<std::string>& steps);

    // What the compiler tells
    void Compiler_BuildStarted();
    void Compiler_BuildStatus(const std::string& message);
    void Compiler_BuildError(const std::string& message, const std::string& fileName, std::int32_t line,
                             std::int32_t errorNumber);
    void Compiler_BuildWarning(const std::string& message, const std::string& fileName, std::int32_t line,
                               std::int32_t errorNumber);
    void Compiler_AddDependency(const std::string& name, std::int32_t type);
    void Compiler_BuildFinished(bool success);
    void AddToProgress(const std::string& text);
    std::int32_t FixupLineNumber(const Project& project, const std::string& fileName, std::int32_t line);
    std::int32_t getLineCount(const std::string& fileName);

    std::string supportAddress() const { return use_.platform.app.SupportWebAddress; }
    int box(Procedure& here, const std::string& text, int buttons);

    CompileServices use_;
    LineCounts lineCounts_;
    Project project_;
    basic::Ref<clsQLProject> qlProject_;
    bool activated_ = false;
    bool compileSucceeded_ = false;
    std::vector<std::string> tavletFileDependencies_;
    std::vector<std::string> componentDependencies_;
    basic::Ref<qltoolkit::CompilerFactory> compilerFactory_;

    WithEvents<qltoolkit::Compiler> Compiler{
        this,
        on(&qltoolkit::Compiler::BuildStarted, &frmCompile::Compiler_BuildStarted),
        on(&qltoolkit::Compiler::BuildStatus, &frmCompile::Compiler_BuildStatus),
        on(&qltoolkit::Compiler::BuildError, &frmCompile::Compiler_BuildError),
        on(&qltoolkit::Compiler::BuildWarning, &frmCompile::Compiler_BuildWarning),
        on(&qltoolkit::Compiler::AddDependency, &frmCompile::Compiler_AddDependency),
        on(&qltoolkit::Compiler::BuildFinished, &frmCompile::Compiler_BuildFinished)};
};

} // namespace fernwick
