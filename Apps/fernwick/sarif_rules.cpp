#include "Apps/fernwick/sarif_rules.h"
#include "Apps/fernwick/catalogue.h"
#include "Apps/fernwick/machine.h"
#include "Apps/fernwick/maker.h"
#include <fmt/format.h>

namespace cli {

namespace {

Json ruleOf(const fernwick::MessageInfo& message, const std::string& pages) {
    Json rule{{"id", std::to_string(message.number)},
              {"shortDescription", {{"text", message.text}}},
              {"fullDescription", {{"text", message.meaning}}},
              {"help", {{"text", message.remedy}}},
              {"defaultConfiguration", {{"level", kindOf(message)}}}};
    if (!pages.empty()) rule["helpUri"] = fmt::format("{}{}.html", pages, message.number);
    return rule;
}

} // namespace

Json sarifRules(const std::set<int>& numbers) {
    Json rules = Json::array();
    if (numbers.empty()) return rules;
    const auto pages = messagePagesOf(findInstallation(host::Environment{}));
    for (const auto number : numbers)
        if (const auto* known = messageNumbered(number)) rules.push_back(ruleOf(*known, pages));
    return rules;
}

} // namespace cli
