#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/output/report.h"

namespace cli {

namespace {

Json jsonOfMessage(const Message& message) {
    Json json{{"severity", severityOf(message)}, {"number", message.number}, {"text", message.text}};
    if (!message.file.empty()) json["file"] = message.file;
    if (message.line > 0) json["line"] = message.line;
    if (message.column > 0) json["column"] = message.column;
    if (!message.component.empty()) json["component"] = message.component;
    if (message.codeLine > 0) json["codeLine"] = message.codeLine;
    return json;
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

Json jsonOfReport(const Report& report) {
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
    for (const auto& project : report.projects) json["projects"].push_back(jsonOfReport(project));
    return json;
}

} // namespace

std::string jsonOf(const Report& report) { return dumpJson(jsonOfReport(report)); }

} // namespace cli
