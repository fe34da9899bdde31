#pragma once
// The programs that a project runs before and after its compile.
#include "Add-in/build/modProcessControl.h"
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

/// Runs every step, even after one has failed. The functions return false if an exit code is not 0, or
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
