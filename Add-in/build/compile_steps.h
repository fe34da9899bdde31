#pragma once
// The programs that a project runs before and after its compile.
#include "Add-in/build/modProcessControl.h"
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

/// Runs every step, whatever the earlier ones returned. The result is false when a step's exit code was not 0, or when
/// the stored list cannot be read.
class CompileSteps {
public:
    using Project = basic::Ref<vbide::VBProject>;

    CompileSteps(ErrorReport& errors, modProjectHandler& projects, modProcessControl& processes)
        : errors_(errors), projects_(projects), processes_(processes) {}

    bool RunPreCompileSteps(const Project& project);
    bool RunPostCompileSteps(const Project& project);

private:
    bool runSteps(Procedure& here, const basic::Ref<clsQLProject>& qlProject, const Array<std::string>& steps);

    ErrorReport& errors_;
    modProjectHandler& projects_;
    modProcessControl& processes_;
};

} // namespace fernwick
