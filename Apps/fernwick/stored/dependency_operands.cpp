#include "Apps/fernwick/stored/dependency_operands.h"
#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Apps/fernwick/run/project_argument.h"
#include <fmt/format.h>

namespace cli {

namespace {

bool isDependencyAction(const std::string& operand) {
    return operand == "list" || operand == "add" || operand == "remove";
}

} // namespace

DependencyOperands dependencyOperands(const std::vector<std::string>& operands) {
    DependencyOperands parsed;
    auto next = operands.begin();
    bool hasAction = false;
    for (; next != operands.end(); ++next) {
        if (!hasAction && isDependencyAction(*next))
            parsed.action = *next, hasAction = true;
        else if (parsed.project.empty() && (hasAction ? apps::hasExtension(*next, ".vbp") : namesProject(*next)))
            parsed.project = *next;
        else
            break;
    }
    parsed.files.assign(next, operands.end());
    if (!hasAction && !parsed.files.empty())
        throw Refusal(kWrongUse, fmt::format("dependencies expects list, add or remove, not {}{}", parsed.files.front(),
                                             didYouMean(parsed.files.front(), {"list", "add", "remove"})));
    if (hasAction && parsed.files.empty() != (parsed.action == "list"))
        throw Refusal(kWrongUse, parsed.action == "list"
                                     ? "dependencies list expects no files"
                                     : fmt::format("dependencies {}: no files given", parsed.action));
    return parsed;
}

} // namespace cli
