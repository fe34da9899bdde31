// The compiler's events.
#include "Add-in/build/compile_run.h"
#include "Add-in/build/frmCompile.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/core/guids.h"
#include "Basic/like.h"
#include "Basic/number_text.h"

namespace fernwick {

void CompileRun::Compiler_BuildStarted() { dialog_.AddToProgress(build_texts::kBuildStarted); }

void CompileRun::Compiler_BuildStatus(const std::string& message) {
    basic::Suppressed quietly;
    quietly([&] {
        if (basic::Like(message, "*% completed*")) dialog_.prgbarUpdate.Value(float(basic::Val(message)));
    });
    dialog_.AddToProgress(message);
    dialog_.Refresh();
    quietly([&] { services_.platform.loop.DoEvents(); });
}

void CompileRun::Compiler_BuildError(const std::string& message, const std::string& fileName, std::int32_t line,
                                     std::int32_t errorNumber) {
    const auto codeLine = FixupLineNumber(fileName, line);
    services_.messages.AddProjectCompileError(project_, message, fileName, codeLine, errorNumber);
}

void CompileRun::Compiler_BuildWarning(const std::string& message, const std::string& fileName, std::int32_t line,
                                       std::int32_t errorNumber) {
    const auto codeLine = FixupLineNumber(fileName, line);
    services_.messages.AddProjectCompileWarning(project_, message, fileName, codeLine, errorNumber);
    services_.messages.ShowProjectCompileErrors(project_, true);
}

void CompileRun::Compiler_AddDependency(const std::string& name, std::int32_t type) {
    Procedure here{services_.errors, "frmCompile.Compiler_AddDependency"};
    if (name.empty()) return;
    if (type == qltoolkit::FileDependency) {
        tavletFileDependencies_.push_back(name);
    } else if (type == qltoolkit::ComponentDependency) {
        std::string guid = name;
        if (NormaliseGuidText(guid)) componentDependencies_.push_back(guid);
    } else {
        here([&] { box(build_texts::kUnexpectedDependency, vbOKOnly); });
    }
}

void CompileRun::Compiler_BuildFinished(bool success) {
    Procedure here{services_.errors, "frmCompile.Compiler_BuildFinished"};
    here([&] { dialog_.SetFocus(); });
    dialog_.aniCompile.Stop();
    dialog_.aniCompile.Visible(false);
    if (success) {
        dialog_.finishedImg.Visible(true);
        dialog_.AddToProgress(build_texts::kScanningDependencies);
    } else {
        dialog_.failedImg.Visible(true);
        dialog_.AddToProgress(build_texts::kFinishedWithError);
        services_.messages.ShowProjectCompileErrors(project_, true);
    }
    dialog_.Refresh();
    succeeded_ = success;
}

/// The compiler counts lines of the file on disk, which begins with design data that the code window does not show.
std::int32_t CompileRun::FixupLineNumber(const std::string& fileName, std::int32_t line) {
    Procedure here{services_.errors, "frmCompile.FixupLineNumber"};
    if (fileName.empty() || line < 1) return 0;
    const auto fileLines = getLineCount(fileName);
    const std::string title = services_.messages.FindFileTitle(project_, fileName);
    const auto moduleLines =
        here.value([&] { return project_->VBComponents()->Item(title)->CodeModule()->CountOfLines(); });
    return line - (fileLines - moduleLines);
}

std::int32_t CompileRun::getLineCount(const std::string& fileName) {
    Procedure here{services_.errors, "frmCompile.getLineCount"};
    return here.value([&] { return lineCounts_.getLineCount(fileName); });
}

} // namespace fernwick
