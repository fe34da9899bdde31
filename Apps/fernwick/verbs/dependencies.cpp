#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/stored/dependency_changes.h"
#include "Apps/fernwick/stored/dependency_operands.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <fmt/format.h>

namespace cli {

namespace {

int listDependencies(Session& session, const Options& options, Console& console) {
    auto json = jsonResult("dependencies");
    json["project"] = session.path();
    json["dependencies"] = Json::array();
    for (const auto& entry : session.addIn().dependencies.ReadProjectDependencies(session.project())) {
        if (entry.FileName.empty()) continue; // unreadable
        const bool missing = isMissing(session, entry);
        if (options.format == Format::Json)
            json["dependencies"].push_back({{"name", entry.FileName},
                                            {"type", entry.FileType},
                                            {"size", missing ? Json(nullptr) : Json(entry.FileSize)},
                                            {"missing", missing}});
        else
            console.out(fmt::format("{:>10}  {:<4}  {}\n", missing ? "missing" : std::to_string(entry.FileSize),
                                    entry.FileType, entry.FileName));
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
    session.closeUnsaved();
    return kGood;
}

} // namespace

int runDependencies(const Options& options, Console& console) {
    auto operands = dependencyOperands(options.operands);
    Session session{options, console};
    const auto project = projectArgument(operands.project);
    if (operands.action != "list") session.lock(project);
    session.open(project);
    session.takeUp();
    return operands.action == "list" ? listDependencies(session, options, console)
                                     : changeDependencies(session, operands, console);
}

} // namespace cli
