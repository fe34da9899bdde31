// The programs that a project runs around its compile.
#include "Add-in/build/frmCompile.h"

namespace fernwick {

bool frmCompile::RunPreCompileSteps(const Project& project) {
    Procedure here{use_.errors, "frmCompile.RunPreCompileSteps"};
    const auto qlProject = use_.projects.GetQLProject(project);
    if (!here.test([&] { return qlProject->PreCompileStepCount() >= 1; })) return true;
    Array<std::string> steps;
    if (!here.value([&] { return qlProject->GetPreCompileSteps(steps); })) return false;
    return runSteps(here, qlProject, steps);
}

bool frmCompile::RunPostCompileSteps(const Project& project) {
    Procedure here{use_.errors, "frmCompile.RunPostCompileSteps"};
    const auto qlProject = use_.projects.GetQLProject(project);
    if (!here.test([&] { return qlProject->PostCompileStepCount() >= 1; })) return true;
    Array<std::string> steps;
    if (!here.value([&] { return qlProject->GetPostCompileSteps(steps); })) return false;
    return runSteps(here, qlProject, steps);
}

/// All of them, whatever the earlier ones returned.
bool frmCompile::runSteps(Procedure& here, const basic::Ref<clsQLProject>& qlProject, const Array<std::string>& steps) {
    bool allWell = true;
    for (const auto& step : steps) {
        std::string folder = here.value([&] { return qlProject->ProjectPath(); });
        if (use_.processes.RunProcess(step, folder) != 0) allWell = false;
    }
    return allWell;
}

} // namespace fernwick
