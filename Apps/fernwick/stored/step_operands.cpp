#include "Apps/fernwick/stored/step_operands.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Apps/fernwick/run/project_argument.h"
#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <utility>

namespace cli {

namespace {

const std::vector<std::string> kActions{"list", "add", "remove", "move"}, kTimes{"pre", "post"};

bool isOneOf(const std::string& operand, const std::vector<std::string>& words) {
    return std::find(words.begin(), words.end(), operand) != words.end();
}

std::size_t stepNumber(const std::string& operand) {
    std::size_t number = 0;
    const auto* end = operand.data() + operand.size();
    const auto [stop, error] = std::from_chars(operand.data(), end, number);
    if (error != std::errc() || stop != end || number == 0)
        throw Refusal(kWrongUse, fmt::format("steps: {} is not the number of a step", operand));
    return number;
}

void requireFittingOperands(const StepOperands& parsed) {
    const auto wrong = [&](const char* why) {
        throw Refusal(kWrongUse, fmt::format("steps {}: {}", parsed.action, why));
    };
    if (parsed.action == "list") {
        if (!parsed.commands.empty()) wrong("takes no further operands");
    } else if (parsed.when.empty()) {
        wrong("say pre or post, for before or after the compile");
    } else if (parsed.commands.empty()) {
        wrong(parsed.action == "add" ? "no command given" : "no number given");
    } else if (parsed.action == "move" && parsed.commands.size() != 2) {
        wrong("takes the number of a step and its new number");
    }
}

} // namespace

StepOperands stepOperands(const std::vector<std::string>& operands) {
    StepOperands parsed;
    auto next = operands.begin();
    bool hasAction = false;
    for (; next != operands.end() && parsed.when.empty(); ++next) {
        if (!hasAction && isOneOf(*next, kActions))
            parsed.action = *next, hasAction = true;
        else if (hasAction && isOneOf(*next, kTimes))
            parsed.when = *next;
        else if (parsed.project.empty() && namesProject(*next))
            parsed.project = *next;
        else
            break;
    }
    parsed.commands.assign(next, operands.end());
    if (!hasAction && !parsed.commands.empty())
        throw Refusal(kWrongUse, fmt::format("steps expects list, add, remove or move, not {}{}",
                                             parsed.commands.front(), didYouMean(parsed.commands.front(), kActions)));
    requireFittingOperands(parsed);
    if (parsed.action == "remove" || parsed.action == "move")
        for (const auto& operand : std::exchange(parsed.commands, {})) parsed.numbers.push_back(stepNumber(operand));
    return parsed;
}

} // namespace cli
