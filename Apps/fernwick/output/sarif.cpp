#include "Apps/common/machine.h"
#include "Apps/common/maker.h"
#include "Apps/common/version.h"
#include "Apps/fernwick/output/catalogue.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/report.h"
#include <fmt/format.h>
#include <set>

namespace cli {

namespace {

std::string uriOf(const std::string& path) {
    std::string uri = "file://";
    for (const unsigned char c : path) {
        const bool plain = std::isalnum(c) != 0 || std::string_view("-._~/").find(char(c)) != std::string_view::npos;
        uri += plain ? std::string(1, char(c)) : fmt::format("%{:02X}", c);
    }
    return uri;
}

/// A message without a file is located at the project.
Json sarifLocation(const Message& message, const std::string& project) {
    Json physical{{"artifactLocation", {{"uri", uriOf(message.file.empty() ? project : message.file)}}}};
    if (message.line > 0) {
        physical["region"] = {{"startLine", message.line}};
        if (message.column > 0) physical["region"]["startColumn"] = message.column;
    }
    return {{"physicalLocation", physical}};
}

/// Including those of the devices.
std::vector<const Message*> allMessages(const Report& report) {
    std::vector<const Message*> all;
    for (const auto& message : report.messages) all.push_back(&message);
    for (const auto& outcome : report.devices)
        for (const auto& message : outcome.messages) all.push_back(&message);
    return all;
}

Json ruleOf(const fernwick::MessageInfo& message, const std::string& pages) {
    Json rule{{"id", std::to_string(message.number)},
              {"shortDescription", {{"text", message.text}}},
              {"fullDescription", {{"text", message.meaning}}},
              {"help", {{"text", message.remedy}}},
              {"defaultConfiguration", {{"level", kindOf(message)}}}};
    if (!pages.empty()) rule["helpUri"] = fmt::format("{}{}.html", pages, message.number);
    return rule;
}

/// One rule for each number that the catalogue has, in ascending order.
Json sarifRules(const std::set<int>& numbers) {
    Json rules = Json::array();
    if (numbers.empty()) return rules;
    const auto pages = apps::messagePagesOf(apps::findInstallation(host::Environment{}));
    for (const auto number : numbers)
        if (const auto* known = messageNumbered(number)) rules.push_back(ruleOf(*known, pages));
    return rules;
}

Json sarifResult(const Message& message, const std::string& project) {
    return {{"ruleId", std::to_string(message.number)},
            {"level", message.isError ? "error" : "warning"},
            {"message", {{"text", message.text}}},
            {"locations", Json::array({sarifLocation(message, project)})}};
}

Json sarifInvocation(const Report& report) {
    Json invocation{{"executionSuccessful", report.exitStatus == 0}, {"exitCode", report.exitStatus}};
    if (!report.failure.empty())
        invocation["toolExecutionNotifications"] =
            Json::array({{{"level", "error"}, {"message", {{"text", report.failure}}}}});
    return invocation;
}

} // namespace

std::string sarifOf(const Report& report) {
    Json results = Json::array();
    std::set<int> numbers;
    for (const auto* message : allMessages(report)) {
        numbers.insert(message->number);
        results.push_back(sarifResult(*message, report.project));
    }
    const Json driver{{"name", "fernwick"}, {"version", apps::kVersion}, {"rules", sarifRules(numbers)}};
    const Json run{
        {"tool", {{"driver", driver}}}, {"invocations", Json::array({sarifInvocation(report)})}, {"results", results}};
    return dumpJson({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                     {"version", "2.1.0"},
                     {"runs", Json::array({run})}});
}

} // namespace cli
