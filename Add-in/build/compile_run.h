#pragma once
// One compile, from the check of the project to the stored results. The dialog shows its progress.
#include "Add-in/build/compile_permission.h"
#include "Add-in/build/compile_steps.h"
#include "Add-in/build/line_counts.h"
#include "Add-in/platform/compiler.h"
#include "Add-in/platform/with_events.h"

namespace fernwick {

class frmCompile;

class CompileRun {
public:
    using Project = basic::Ref<vbide::VBProject>;
    using QLProject = basic::Ref<clsQLProject>;

    CompileRun(const CompileServices& services, CompilePermission& permission, frmCompile& dialog);
    CompileRun(const CompileRun&) = delete;

    void begin(const Project& project, const QLProject& qlProject);
    /// Performs the whole run and unloads the dialog.
    void run(Procedure& here);
    /// Releases the project and the compiler.
    void release();
    /// Whether the compiler reported success.
    bool succeeded() const { return succeeded_; }

private:
    bool createCompiler();
    void reportMissingTools(basic::Suppressed& quietly);
    void startAnimation(Procedure& here);
    void notifyReadOnly(Procedure& here);
    bool preStepsAllow(Procedure& here);
    void recordDependencies(Procedure& here);
    void runPostSteps(Procedure& here);
    void finish(Procedure& here);
    bool projectFileIsReadOnly() const;

    // The compiler's events
    void Compiler_BuildStarted();
    void Compiler_BuildStatus(const std::string& message);
    void Compiler_BuildError(const std::string& message, const std::string& fileName, std::int32_t line,
                             std::int32_t errorNumber);
    void Compiler_BuildWarning(const std::string& message, const std::string& fileName, std::int32_t line,
                               std::int32_t errorNumber);
    void Compiler_AddDependency(const std::string& name, std::int32_t type);
    void Compiler_BuildFinished(bool success);
    std::int32_t FixupLineNumber(const std::string& fileName, std::int32_t line);
    std::int32_t getLineCount(const std::string& fileName);

    int box(const std::string& text, int buttons);

    CompileServices services_;
    CompilePermission& permission_;
    frmCompile& dialog_;
    Interaction& user_;
    CompileSteps steps_;
    LineCounts lineCounts_;
    Project project_;
    QLProject qlProject_;
    bool succeeded_ = false;
    std::vector<std::string> tavletFileDependencies_;
    std::vector<std::string> componentDependencies_;
    basic::Ref<qltoolkit::CompilerFactory> compilerFactory_;

    WithEvents<qltoolkit::Compiler> Compiler{
        this,
        on(&qltoolkit::Compiler::BuildStarted, &CompileRun::Compiler_BuildStarted),
        on(&qltoolkit::Compiler::BuildStatus, &CompileRun::Compiler_BuildStatus),
        on(&qltoolkit::Compiler::BuildError, &CompileRun::Compiler_BuildError),
        on(&qltoolkit::Compiler::BuildWarning, &CompileRun::Compiler_BuildWarning),
        on(&qltoolkit::Compiler::AddDependency, &CompileRun::Compiler_AddDependency),
        on(&qltoolkit::Compiler::BuildFinished, &CompileRun::Compiler_BuildFinished)};
};

} // namespace fernwick
