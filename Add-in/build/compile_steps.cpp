#include "Add-in/build/compile_steps.h"

namespace fernwick {

bool CompileSteps::RunPreCompileSteps(const Project& project) {
    Procedure here{errors_, "frmCompile.RunPreCompileSteps"};
    const auto qlProject = projects_.GetQLProject(project);
    if (here.test([&] { return qlProject->PreCompileStepCount() < 1; })) return true;
    Array<std::string> steps;
    if (!here.value([&] { return qlProject->GetPreCompileSteps(steps); })) return false;
    return runSteps(here, qlProject, steps);
}

bool CompileSteps::RunPostCompileSteps(const Project& project) {
    Procedure here{errors_, "frmCompile.RunPostCompileSteps"};
    const auto qlProject = projects_.GetQLProject(project);
    if (here.test([&] { return qlProject->PostCompileStepCount() < 1; })) return true;
    Array<std::string> steps;
    if (!here.value([&] { return qlProject->GetPostCompileSteps(steps); })) return false;
    return runSteps(here, qlProject, steps);
}

bool CompileSteps::runSteps(Procedure& here, const basic::Ref<clsQLProject>& qlProject,
                            const Array<std::string>& steps) {
    bool allWell = true;
    for (const auto& step : steps) {
        std::string folder = here.value([&] { return qlProject->ProjectPath(); });
        if (processes_.RunProcess(step, folder) != 0) allWell = false;
    }
    return allWell;
}

} // namespace fernwick
