#include "Add-in/lifecycle/project_upgrade.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/file_errors.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::Upgrade;
using fernwick::UpgradeResult;

/// The host has read the project and does not write it.
Upgrade upgrade(Session& session) {
    Upgrade done;
    const auto failed = basic::attempt([&] {
        done = upgradeProject(session.machine().platform().files, session.addIn().deviceServices, session.path());
    });
    if (failed.Number != 0) throw Refusal(kProjectErrors, withFile(session.path(), failed.Description));
    if (done.result == UpgradeResult::Foreign)
        throw Refusal(kProjectErrors, session.path() +
                                          ": not a Fernwick project: its section [Quinloft Global] has no line "
                                          "IsQuinloftProject=True. Make it one with fernwick init.");
    return done;
}

void print(const Options& options, Console& console, const Upgrade& done, const std::string& project) {
    if (options.format == Format::Json) {
        auto json = jsonResult("upgrade");
        json["project"] = project;
        json["upgraded"] = done.result == UpgradeResult::Upgraded;
        if (!done.backup.empty()) json["backup"] = done.backup;
        json["unknownLines"] = done.unknownLines;
        return console.out(dumpJson(json));
    }
    for (const auto& line : done.unknownLines)
        console.note(fmt::format("{}: kept, but not known to this version: {}", project, line));
    if (done.result == UpgradeResult::Current)
        return console.note(fmt::format("{}: has the present format already", project));
    console.out(project + "\n");
    if (options.verbosity != Verbosity::Quiet) console.out(fmt::format("the old project file is {}\n", done.backup));
}

} // namespace

int runUpgrade(const Options& options, Console& console) {
    Session session{options, console};
    const auto given = projectArgument(options.project);
    session.lock(given);
    session.open(given);
    session.requireWritableProject();
    const auto done = upgrade(session);
    if (done.result == UpgradeResult::Upgraded) {
        session.takeUp();
        session.addIn().recent.AddProjectToRecentList(session.settings());
    }
    print(options, console, done, session.path());
    return kGood;
}

} // namespace cli
