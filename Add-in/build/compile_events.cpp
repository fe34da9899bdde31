// What the compiler tells while it works.
#include "Add-in/build/frmCompile.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/core/guids.h"
#include "Basic/like.h"
#include "Basic/number_text.h"

namespace fernwick {

void frmCompile::Compiler_BuildStarted() { AddToProgress(build_texts::kBuildStarted); }

void frmCompile::Compiler_BuildStatus(const std::string& message) {
    basic::Suppressed quietly;
    quietly([&] {
        if (basic::Like(message, "*% completed*")) prgbarUpdate.Value(float(basic::Val(message)));
    });
    AddToProgress(message);
    Refresh();
    quietly([&] { use_.platform.loop.DoEvents(); });
}

void frmCompile::Compiler_BuildError(const std::string& message, const std::string& fileName, std::int32_t line,
                                     std::int32_t errorNumber) {
    const auto codeLine = FixupLineNumber(project_, fileName, line);
    use_.messages.AddProjectCompileError(project_, message, fileName, codeLine, errorNumber);
}

void frmCompile::Compiler_BuildWarning(const std::string& message, const std::string& fileName, std::int32_t line,
                                       std::int32_t errorNumber) {
    const auto codeLine = FixupLineNumber(project_, fileName, line);
    use_.messages.AddProjectCompileWarning(project_, message, fileName, codeLine, errorNumber);
    use_.messages.ShowProjectCompileErrors(project_, true);
}

void frmCompile::Compiler_AddDependency(const std::string& name, std::int32_t type) {
    Procedure here{use_.errors, "frmCompile.Compiler_AddDependency"};
    if (name.empty()) return;
    if (type == qltoolkit::FileDependency) {
        tavletFileDependencies_.push_back(name);
    } else if (type == qltoolkit::ComponentDependency) {
        std::string guid = name;
        if (NormaliseGuidText(guid)) componentDependencies_.push_back(guid);
    } else {
        box(here, build_texts::kUnexpectedDependency, vbOKOnly);
    }
}

void frmCompile::Compiler_BuildFinished(bool success) {
    Procedure here{use_.errors, "frmCompile.Compiler_BuildFinished"};
    here([&] { SetFocus(); });
    aniCompile.Stop();
    aniCompile.Visible(false);
    if (success) {
        finishedImg.Visible(true);
        AddToProgress(build_texts::kScanningDependencies);
    } else {
        failedImg.Visible(true);
        AddToProgress(build_texts::kFinishedWithError);
        use_.messages.ShowProjectCompileErrors(project_, true);
    }
    Refresh();
    compileSucceeded_ = success;
}

void frmCompile::AddToProgress(const std::string& text) {
    Procedure here{use_.errors, "frmCompile.AddToProgress"};
    stsUpdate.SimpleText(text);
    stsUpdate.Refresh();
    here([&] { use_.platform.loop.DoEvents(); });
}

/// The compiler counts lines in the file on disk, whose header of design data the code window doesn't show.
std::int32_t frmCompile::FixupLineNumber(const Project& project, const std::string& fileName, std::int32_t line) {
    Procedure here{use_.errors, "frmCompile.FixupLineNumber"};
    if (fileName.empty() || line < 1) return 0;
    const auto fileLines = getLineCount(fileName);
    const std::string title = use_.messages.FindFileTitle(project, fileName);
    const auto moduleLines =
        here.value([&] { return project->VBComponents()->Item(title)->CodeModule()->CountOfLines(); });
    return line - (fileLines - moduleLines);
}

std::int32_t frmCompile::getLineCount(const std::string& fileName) {
    Procedure here{use_.errors, "frmCompile.getLineCount"};
    return here.value([&] { return lineCounts_.getLineCount(fileName); });
}

} // namespace fernwick
