#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/plural.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/stored/setting_change.h"
#include "Apps/fernwick/stored/step_operands.h"
#include "Apps/fernwick/verbs/verbs.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

namespace {

using Steps = StoredSetting::Values;

const StoredSetting& settingOf(const std::string& when) {
    return *storedSettingNamed(when == "pre" ? "PreCompileSteps" : "PostCompileSteps");
}

void requireStep(std::size_t number, const Steps& steps, const std::string& when) {
    if (number > steps.size())
        throw Refusal(kWrongUse, fmt::format("there is no step {} {}; the project has {}", when, number,
                                             plural(steps.size(), when + " step")));
}

Steps withCommands(Steps steps, const StepOperands& operands) {
    for (const auto& command : operands.commands)
        if (command.find_first_not_of(" \t") == command.npos) throw Refusal(kWrongUse, "steps add: a step is empty");
    steps.insert(steps.end(), operands.commands.begin(), operands.commands.end());
    return steps;
}

Steps withoutNumbers(const Steps& steps, const StepOperands& operands) {
    Steps left;
    for (const auto number : operands.numbers) requireStep(number, steps, operands.when);
    for (std::size_t i = 0; i < steps.size(); ++i)
        if (std::find(operands.numbers.begin(), operands.numbers.end(), i + 1) == operands.numbers.end())
            left.push_back(steps[i]);
    return left;
}

Steps withOneMoved(Steps steps, const StepOperands& operands) {
    for (const auto number : operands.numbers) requireStep(number, steps, operands.when);
    const auto at = [&](std::size_t number) { return steps.begin() + std::ptrdiff_t(number - 1); };
    const auto from = at(operands.numbers[0]), to = at(operands.numbers[1]);
    from < to ? std::rotate(from, from + 1, to + 1) : std::rotate(to, from, from + 1);
    return steps;
}

Steps changed(const Steps& steps, const StepOperands& operands) {
    if (operands.action == "add") return withCommands(steps, operands);
    if (operands.action == "remove") return withoutNumbers(steps, operands);
    return withOneMoved(steps, operands);
}

/// Nothing is saved if nothing changes.
void changeSteps(Session& session, const StepOperands& operands) {
    session.requireWritableProject();
    const auto& setting = settingOf(operands.when);
    const auto before = setting.read(placeOf(session));
    const auto after = changed(before, operands);
    if (const auto wrong = wrongWithValues(setting, after); !wrong.empty()) throw Refusal(kWrongUse, wrong);
    if (after != before) (void)changeSetting(session, setting, after, false);
}

struct AllSteps {
    Steps before, after;
};

AllSteps stepsOf(Session& session) {
    return {settingOf("pre").read(placeOf(session)), settingOf("post").read(placeOf(session))};
}

/// As text only the steps before or after the compile if one of them is named.
void print(const Options& options, Console& console, const AllSteps& steps, const std::string& project,
           const std::string& when) {
    if (options.format == Format::Json) {
        auto json = jsonResult("steps");
        json["project"] = project;
        json["preCompileSteps"] = steps.before;
        json["postCompileSteps"] = steps.after;
        return console.out(dumpJson(json));
    }
    const auto list = [&](const char* label, const Steps& some) {
        if (!when.empty() && when != label) return;
        for (std::size_t i = 0; i < some.size(); ++i)
            console.out(fmt::format("{:<4} {:>2}  {}\n", label, i + 1, some[i]));
    };
    list("pre", steps.before);
    list("post", steps.after);
}

} // namespace

int runSteps(const Options& options, Console& console) {
    const auto operands = stepOperands(options.operands);
    const bool lists = operands.action == "list";
    Session session{options, console};
    const auto given = projectArgument(operands.project);
    if (!lists) session.lock(given);
    session.open(given);
    session.requireFernwickProject();
    session.takeUp();
    if (!lists) changeSteps(session, operands);
    const auto steps = stepsOf(session);
    if (lists)
        session.closeUnsaved();
    else if (!session.closeAndSave())
        throw Refusal(kMachineTrouble, session.path() + " cannot be saved");
    if (lists || options.format == Format::Json) print(options, console, steps, session.path(), operands.when);
    return kGood;
}

} // namespace cli
