#include "Apps/fernwick/groups/project_group.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/verbs/info_verify.h"
#include "Apps/fernwick/verbs/project_info.h"
#include "Apps/fernwick/verbs/verbs.h"

namespace cli {

namespace {

ProjectInfo infoOfProject(const std::string& path, const Options& options, Console& console) {
    Session session{options, console};
    session.open(path);
    session.takeUp();
    auto info = infoOf(session);
    session.closeUnsaved();
    return info;
}

int showProjects(const ProjectGroup& subject, const Options& options, Console& console) {
    auto json = jsonResult("info");
    json["projects"] = Json::array();
    int status = kGood;
    std::string gap;
    for (const auto& path : subject.projects) {
        try {
            const auto info = infoOfProject(path, options, console);
            json["projects"].push_back(jsonOfInfo(info));
            if (options.format == Format::Text) console.out(std::exchange(gap, "\n") + textOfInfo(info));
        } catch (const Refusal& refusal) {
            if (subject.path.empty()) throw;
            status = kProjectErrors;
            console.err(std::string("fernwick: ") + refusal.what(), Tone::Error);
        }
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
    return status;
}

} // namespace

int runInfo(const Options& options, Console& console) {
    const auto subject = projectGroupOf(projectArgument(options.project), options.codePage);
    return options.verify ? verifyRoundTrip(subject, options, console) : showProjects(subject, options, console);
}

} // namespace cli
