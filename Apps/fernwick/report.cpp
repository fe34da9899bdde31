#include "Apps/fernwick/report.h"
#include "Apps/fernwick/json_output.h"
#include "Apps/fernwick/sarif_rules.h"
#include "Apps/fernwick/version.h"
#include <fmt/format.h>

namespace cli {

namespace {

Json jsonOfMessage(const Message& message) {
    Json json{{"severity", message.isError ? "error" : "warning"}, {"number", message.number}, {"text", message.text}};
    if (!message.file.empty()) json["file"] = message.file;
    if (message.line > 0) json["line"] = message.line;
    if (message.column > 0) json["column"] = message.column;
    if (!message.component.empty()) json["component"] = message.component;
    if (message.codeLine > 0) json["codeLine"] = message.codeLine;
    return json;
}

std::string uriOf(const std::string& path) {
    std::string uri = "file://";
    for (const unsigned char c : path) {
        const bool plain = std::isalnum(c) != 0 || std::string_view("-._~/").find(char(c)) != std::string_view::npos;
        uri += plain ? std::string(1, char(c)) : fmt::format("%{:02X}", c);
    }
    return uri;
}

Json sarifLocation(const Message& message, const std::string& project) {
    Json physical{{"artifactLocation", {{"uri", uriOf(message.file.empty() ? project : message.file)}}}};
    if (message.line > 0) {
        physical["region"] = {{"startLine", message.line}};
        if (message.column > 0) physical["region"]["startColumn"] = message.column;
    }
    return {{"physicalLocation", physical}};
}

} // namespace

std::string textOf(const Message& message, const std::string& project) {
    std::string place = message.file.empty() ? project : message.file;
    if (message.line > 0) place += fmt::format(":{}", message.line);
    return fmt::format("{}: {} {}: {}", place, message.isError ? "error" : "warning", message.number, message.text);
}

std::string jsonOf(const Report& report) {
    Json json{{"schemaVersion", kSchemaVersion},
              {"verb", report.verb},
              {"project", report.project},
              {"device", report.device},
              {"image", report.image.empty() ? Json(nullptr) : Json(report.image)},
              {"statusText", report.statusText},
              {"exitStatus", report.exitStatus},
              {"failure", report.failure.empty() ? Json(nullptr) : Json(report.failure)}};
    json["messages"] = Json::array();
    for (const auto& message : report.messages) json["messages"].push_back(jsonOfMessage(message));
    json["boxes"] = Json::array();
    for (const auto& box : report.boxes)
        json["boxes"].push_back({{"title", box.title}, {"text", box.text}, {"answer", box.answer}});
    return dumpJson(json);
}

std::string sarifOf(const Report& report) {
    Json results = Json::array();
    std::set<int> numbers;
    for (const auto& message : report.messages) numbers.insert(message.number);
    for (const auto& message : report.messages)
        results.push_back({{"ruleId", std::to_string(message.number)},
                           {"level", message.isError ? "error" : "warning"},
                           {"message", {{"text", message.text}}},
                           {"locations", Json::array({sarifLocation(message, report.project)})}});
    Json invocation{{"executionSuccessful", report.exitStatus == 0}, {"exitCode", report.exitStatus}};
    if (!report.failure.empty())
        invocation["toolExecutionNotifications"] =
            Json::array({{{"level", "error"}, {"message", {{"text", report.failure}}}}});
    const Json driver{{"name", "fernwick"}, {"version", FERNWICK_VERSION}, {"rules", sarifRules(numbers)}};
    const Json run{{"tool", {{"driver", driver}}},
                   {"invocations", Json::array({invocation})},
                   {"results", results}};
    return dumpJson({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                     {"version", "2.1.0"},
                     {"runs", Json::array({run})}});
}

} // namespace cli
