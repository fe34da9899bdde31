#include "Apps/common/compile_steps.h"

namespace apps {

std::vector<std::string> allSteps(const fernwick::clsQLProject& project) {
    std::vector<std::string> steps;
    for (const auto read :
         {&fernwick::clsQLProject::GetPreCompileSteps, &fernwick::clsQLProject::GetPostCompileSteps}) {
        fernwick::Array<std::string> list;
        (project.*read)(list);
        steps.insert(steps.end(), list.begin(), list.end());
    }
    return steps;
}

} // namespace apps
