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

Json jsonOfMessages(const std::vector<Message>& messages) {
    Json json = Json::array();
    for (const auto& message : messages) json.push_back(jsonOfMessage(message));
    return json;
}

Json jsonOfBoxes(const std::vector<ShownBox>& boxes) {
    Json json = Json::array();
    for (const auto& box : boxes) json.push_back({{"title", box.title}, {"text", box.text}, {"answer", box.answer}});
    return json;
}

Json jsonOfDevice(const DeviceOutcome& outcome) {
    return {{"device", outcome.device},
            {"good", outcome.good},
            {"places", outcome.places},
            {"statusText", outcome.statusText},
            {"reason", outcome.reason.empty() ? Json(nullptr) : Json(outcome.reason)},
            {"messages", jsonOfMessages(outcome.messages)},
            {"boxes", jsonOfBoxes(outcome.boxes)}};
}

/// All results of a run, those of its devices too.
std::vector<const Message*> allMessages(const Report& report) {
    std::vector<const Message*> all;
    for (const auto& message : report.messages) all.push_back(&message);
    for (const auto& outcome : report.devices)
        for (const auto& message : outcome.messages) all.push_back(&message);
    return all;
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
    json["messages"] = jsonOfMessages(report.messages);
    json["boxes"] = jsonOfBoxes(report.boxes);
    if (!report.devices.empty()) {
        json["devices"] = Json::array();
        for (const auto& outcome : report.devices) json["devices"].push_back(jsonOfDevice(outcome));
    }
    return dumpJson(json);
}

std::string sarifOf(const Report& report) {
    Json results = Json::array();
    std::set<int> numbers;
    for (const auto* message : allMessages(report)) {
        numbers.insert(message->number);
        results.push_back({{"ruleId", std::to_string(message->number)},
                           {"level", message->isError ? "error" : "warning"},
                           {"message", {{"text", message->text}}},
                           {"locations", Json::array({sarifLocation(*message, report.project)})}});
    }
    Json invocation{{"executionSuccessful", report.exitStatus == 0}, {"exitCode", report.exitStatus}};
    if (!report.failure.empty())
        invocation["toolExecutionNotifications"] =
            Json::array({{{"level", "error"}, {"message", {{"text", report.failure}}}}});
    const Json driver{{"name", "fernwick"}, {"version", FERNWICK_VERSION}, {"rules", sarifRules(numbers)}};
    const Json run{{"tool", {{"driver", driver}}}, {"invocations", Json::array({invocation})}, {"results", results}};
    return dumpJson({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                     {"version", "2.1.0"},
                     {"runs", Json::array({run})}});
}

void printMessages(const std::vector<Message>& messages, const std::string& project, Console& console) {
    for (const auto& message : messages)
        console.err(textOf(message, project), message.isError ? Tone::Error : Tone::Warning);
}

bool printFormatted(const Report& report, const Options& options, Console& console) {
    if (!report.failure.empty()) console.err("fernwick: " + report.failure, Tone::Error);
    if (options.format == Format::Json) console.out(jsonOf(report));
    if (options.format == Format::Sarif) console.out(sarifOf(report));
    return options.format != Format::Text;
}

void printReport(const Report& report, const Options& options, Console& console) {
    if (printFormatted(report, options, console)) return;
    printMessages(report.messages, report.project, console);
    if (!report.statusText.empty()) console.out(report.statusText + "\n");
    if (!report.image.empty() && options.verbosity != Verbosity::Quiet) console.out("Image: " + report.image + "\n");
}

} // namespace cli
