#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/printable.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

int runRecent(const Options& options, Console& console) {
    Session session{options, console};
    auto projects = session.addIn().recent.GetRecentList();
    std::erase_if(projects, [](const auto& project) { return project.name.empty(); });
    const auto exists = [&](const auto& project) {
        return session.machine().platform().files.FileExists(project.path);
    };
    if (options.format == Format::Json) {
        auto json = jsonResult("recent");
        json["projects"] = Json::array();
        for (const auto& project : projects)
            json["projects"].push_back({{"name", project.name}, {"path", project.path}, {"exists", exists(project)}});
        console.out(dumpJson(json));
        return kGood;
    }
    for (const auto& project : projects)
        console.out(fmt::format("{:<24}  {}{}\n", basic::printable(project.name), basic::printable(project.path),
                                exists(project) ? "" : "  (missing)"));
    return kGood;
}

} // namespace cli
