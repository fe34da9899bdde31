#include "Apps/common/machine.h"
#include "Apps/common/maker.h"
#include "Apps/common/version.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/catalogue.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/output/rule_names.h"
#include "Apps/fernwick/output/source_uri.h"
#include <fmt/format.h>
#include <set>

namespace cli {

namespace {

constexpr const char* kSourceRootId = "SRCROOT";

/// The places of the messages of one report.
class Locations {
public:
    Locations(const Report& report, const std::string& sourceRoot) : project_(report.project), root_(sourceRoot) {}

    /// A message without a file is located at the project; without a project it has no location.
    Json of(const Message& message) const {
        const auto& path = message.file.empty() ? project_ : message.file;
        if (path.empty()) return Json::array();
        Json physical{{"artifactLocation", artifact(path)}};
        if (message.line > 0) physical["region"] = region(message);
        return Json::array({{{"physicalLocation", physical}}});
    }
    Json baseIds() const { return {{kSourceRootId, {{"uri", root_.uri()}}}}; }

private:
    Json artifact(const std::string& path) const {
        const auto relative = root_.relativeUri(path);
        if (relative.empty()) return {{"uri", fileUri(path)}};
        return {{"uri", relative}, {"uriBaseId", kSourceRootId}};
    }
    static Json region(const Message& message) {
        Json region{{"startLine", message.line}};
        if (message.column == 0) return region;
        region["startColumn"] = message.column;
        if (message.endColumn > 0) region["endColumn"] = message.endColumn;
        return region;
    }

    const std::string& project_;
    SourceRoot root_;
};

/// Including those of the devices.
std::vector<const Message*> allMessages(const Report& report) {
    std::vector<const Message*> all;
    for (const auto& message : report.messages) all.push_back(&message);
    for (const auto& outcome : report.devices)
        for (const auto& message : outcome.messages) all.push_back(&message);
    return all;
}

Json ruleOf(const fernwick::MessageInfo& message, const std::string& pages) {
    Json rule{{"id", ruleId(message.number)},
              {"name", ruleName(message)},
              {"shortDescription", {{"text", message.text}}},
              {"fullDescription", {{"text", message.meaning}}},
              {"help", {{"text", message.remedy}}},
              {"defaultConfiguration", {{"level", kindOf(message)}}}};
    if (!pages.empty()) rule["helpUri"] = fmt::format("{}{}.html", pages, message.number);
    return rule;
}

/// One rule for each number that the catalogue has, in ascending order.
Json sarifRules(const std::set<int>& numbers, const std::string& installation) {
    Json rules = Json::array();
    const auto pages = apps::messagePagesOf(installation);
    for (const auto number : numbers)
        if (const auto* known = messageNumbered(number)) rules.push_back(ruleOf(*known, pages));
    return rules;
}

Json sarifDriver(const std::set<int>& numbers) {
    const auto installation = apps::findInstallation(host::Environment{});
    Json driver{{"name", "fernwick"}, {"version", apps::kVersion}};
    if (const auto address = apps::appOf(installation, {}).WebAddress; !address.empty())
        driver["informationUri"] = address;
    driver["rules"] = sarifRules(numbers, installation);
    return driver;
}

Json sarifResult(const Message& message, const Locations& locations) {
    return {{"ruleId", ruleId(message.number)},
            {"level", message.isError ? "error" : "warning"},
            {"message", {{"text", message.text}}},
            {"locations", locations.of(message)}};
}

/// Findings are results of a successful execution.
bool wasExecuted(const Report& report) {
    const auto status = report.exitStatus;
    return report.failure.empty() && status != kWrongUse && status != kMachineTrouble && status != kInterrupted;
}

Json sarifInvocation(const Report& report) {
    Json invocation{{"executionSuccessful", wasExecuted(report)}, {"exitCode", report.exitStatus}};
    if (!report.failure.empty())
        invocation["toolExecutionNotifications"] =
            Json::array({{{"level", "error"}, {"message", {{"text", report.failure}}}}});
    return invocation;
}

} // namespace

std::string sarifOf(const Report& report, const std::string& sourceRoot) {
    Json results = Json::array();
    std::set<int> numbers;
    const Locations locations{report, sourceRoot};
    for (const auto* message : allMessages(report)) {
        numbers.insert(message->number);
        results.push_back(sarifResult(*message, locations));
    }
    const Json run{{"tool", {{"driver", sarifDriver(numbers)}}},
                   {"automationDetails", {{"id", fmt::format("fernwick-{}/", report.verb)}}},
                   {"originalUriBaseIds", locations.baseIds()},
                   {"columnKind", "unicodeCodePoints"},
                   {"invocations", Json::array({sarifInvocation(report)})},
                   {"results", results}};
    return dumpJson({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                     {"version", "2.1.0"},
                     {"runs", Json::array({run})}});
}

} // namespace cli
