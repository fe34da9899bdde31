#include "Apps/fernwick/run/build_plan.h"
#include "Apps/common/compile_steps.h"
#include "Apps/fernwick/output/json_output.h"
#include <fmt/format.h>

namespace cli {

namespace {

struct BuildPlan {
    std::vector<std::string> sources, libraries, steps;
    std::string device, image;
};

BuildPlan planOf(Session& session, const std::string& image) {
    auto& files = session.machine().platform().files;
    BuildPlan plan;
    for (const auto& component : session.project()->VBComponents()->items())
        plan.sources.push_back(files.GetAbsolutePathName(component->FileNames(1)));
    for (const auto& reference : session.project()->References()->items())
        if (!reference->BuiltIn()) plan.libraries.push_back(reference->FullPath());
    plan.steps = apps::allSteps(*session.settings());
    plan.device = session.settings()->TargetDevice();
    plan.image = image;
    return plan;
}

std::string textOfPlan(const std::string& project, const BuildPlan& plan) {
    std::string text = fmt::format("project  {}\ndevice   {}\n", project, plan.device);
    for (const auto& source : plan.sources) text += fmt::format("source   {}\n", source);
    for (const auto& library : plan.libraries) text += fmt::format("library  {}\n", library);
    for (const auto& step : plan.steps) text += fmt::format("step     {}\n", step);
    return text + fmt::format("image    {}\n", plan.image);
}

Json jsonOfPlan(const std::string& project, const BuildPlan& plan) {
    auto json = jsonResult("build");
    json["dryRun"] = true;
    json["project"] = project;
    json["device"] = plan.device;
    json["sources"] = plan.sources;
    json["libraries"] = plan.libraries;
    json["steps"] = plan.steps;
    json["image"] = plan.image;
    return json;
}

} // namespace

void printPlan(Session& session, const std::string& image, const Options& options, Console& console) {
    const auto plan = planOf(session, image);
    if (options.format == Format::Json) console.out(dumpJson(jsonOfPlan(session.path(), plan)));
    if (options.format == Format::Text) console.out(textOfPlan(session.path(), plan));
}

} // namespace cli
