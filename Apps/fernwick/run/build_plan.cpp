#include "Apps/fernwick/run/build_plan.h"
#include "Apps/common/compile_steps.h"
#include "Apps/fernwick/output/json_output.h"
#include <fmt/format.h>

namespace cli {

namespace {

std::string textOfPlan(const Report& report) {
    std::string text;
    if (!report.plan) return text;
    const auto add = [&](const char* what, const std::string& value) { text += fmt::format("{:<9}{}\n", what, value); };
    add("project", report.project);
    add("device", report.device);
    for (const auto& source : report.plan->sources) add("source", source);
    for (const auto& library : report.plan->libraries) add("library", library);
    for (const auto& step : report.plan->steps) add("step", step);
    add("image", report.image);
    return text;
}

Json membersOf(const Report& report) {
    if (!report.plan)
        return {{"project", report.project}, {"exitStatus", report.exitStatus}, {"failure", report.failure}};
    return {{"project", report.project},           {"device", report.device},     {"sources", report.plan->sources},
            {"libraries", report.plan->libraries}, {"steps", report.plan->steps}, {"image", report.image}};
}

Json jsonOfPlan(const Report& report) {
    auto json = jsonResult("build");
    json["dryRun"] = true;
    if (report.plan) {
        json.update(membersOf(report));
        return json;
    }
    json["project"] = report.project;
    json["exitStatus"] = report.exitStatus;
    json["projects"] = Json::array();
    for (const auto& project : report.projects) json["projects"].push_back(membersOf(project));
    return json;
}

} // namespace

Report plannedBuild(Session& session, const std::string& image) {
    auto& files = session.machine().platform().files;
    BuildPlan plan;
    for (const auto& component : session.project()->VBComponents()->items())
        plan.sources.push_back(files.GetAbsolutePathName(component->FileNames(1)));
    for (const auto& reference : session.project()->References()->items())
        if (!reference->BuiltIn()) plan.libraries.push_back(reference->FullPath());
    plan.steps = apps::allSteps(*session.settings());
    Report report;
    report.verb = "build";
    report.project = session.path();
    report.device = session.settings()->TargetDevice();
    report.image = image;
    report.plan = std::move(plan);
    return report;
}

void printPlan(const Report& report, const Options& options, Console& console) {
    if (options.format == Format::Json) console.out(dumpJson(jsonOfPlan(report)));
    if (options.format != Format::Text) return;
    console.out(textOfPlan(report));
    for (const auto& project : report.projects) console.out(textOfPlan(project));
}

} // namespace cli
