#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::modDeviceManagement;

struct TargetRow {
    std::string key, name, platform, pipe;
    std::string width, height;
    bool usable = false;
};

std::vector<TargetRow> targetRows(const designtargetaccess::DesignTargetMgr& targets, modDeviceManagement& devices) {
    std::vector<TargetRow> rows;
    for (std::int16_t i = 0; i < targets.Count(); ++i) {
        const auto target = targets.GetDesignTargetByIndex(i);
        rows.push_back({target->Key(), devices.StripAcceleratorInfo(target->Name()), target->PlatformName(),
                        target->RequiredPipeProgID(), target->DefaultFormWidth(), target->DefaultFormHeight(),
                        devices.IsValidDevice(target->Key())});
    }
    return rows;
}

Json jsonOfTargets(const std::vector<TargetRow>& rows, const designtargetaccess::DesignTargetMgr& targets) {
    auto json = jsonResult("targets");
    json["targets"] = Json::array();
    for (const auto& row : rows)
        json["targets"].push_back({{"key", row.key},
                                   {"name", row.name},
                                   {"platform", row.platform},
                                   {"pipe", row.pipe},
                                   {"width", row.width},
                                   {"height", row.height},
                                   {"usable", row.usable}});
    json["problems"] = Json::array();
    for (const auto& problem : targets.problems()) json["problems"].push_back(problem.text());
    return json;
}

} // namespace

int runTargets(const Options& options, Console& console) {
    Session session{options, console};
    designtargetaccess::DesignTargetMgr targets{session.machine().installation()};
    targets.Initialize();
    const auto rows = targetRows(targets, session.addIn().devices);
    for (const auto& problem : targets.problems()) console.err(problem.text(), Tone::Error);
    if (rows.empty()) console.err("fernwick: no design targets are installed", Tone::Error);
    if (options.format == Format::Json) {
        console.out(dumpJson(jsonOfTargets(rows, targets)));
    } else {
        for (const auto& row : rows)
            console.out(fmt::format("{:<24}{:<28}{:>5} x {:<6}{}\n", row.key, row.name, row.width, row.height,
                                    row.usable ? "usable" : "not usable"));
    }
    return rows.empty() || !targets.problems().empty() ? kMachineTrouble : kGood;
}

} // namespace cli
