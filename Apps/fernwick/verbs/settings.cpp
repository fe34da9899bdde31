#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/verbs/stored_settings.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// The parsed operands: [PROJECT] [NAME [VALUE...]].
struct SettingOperands {
    std::string project, name;
    std::vector<std::string> values;
};

bool namesProject(const std::string& operand) {
    return operand.size() > 4 && basic::equalNoCase(std::string_view(operand).substr(operand.size() - 4), ".vbp");
}

SettingOperands splitOperands(std::vector<std::string> operands) {
    SettingOperands split;
    auto next = operands.begin();
    if (next != operands.end() && namesProject(*next)) split.project = *next++;
    if (next != operands.end()) split.name = *next++;
    split.values.assign(next, operands.end());
    split.project = projectArgument(split.project);
    return split;
}

const StoredSetting& settingOf(const SettingOperands& operands) {
    const auto* setting = storedSettingNamed(operands.name);
    if (!setting)
        throw Refusal(kWrongUse, operands.name.empty()
                                     ? "no setting given; see fernwick help settings"
                                     : fmt::format("unknown setting {}; see fernwick help settings", operands.name));
    return *setting;
}

std::string joinedValues(const std::vector<std::string>& values) {
    std::string text;
    for (const auto& value : values) text += (text.empty() ? "" : " | ") + value;
    return text;
}

Json jsonOfSetting(const StoredSetting& setting, const fernwick::clsQLProject& project) {
    const auto values = setting.read(project);
    Json json{{"name", setting.name}};
    json["value"] = setting.kind == SettingKind::List ? Json(values) : Json(values.front());
    json["writable"] = setting.write != nullptr;
    json["meaning"] = setting.meaning;
    return json;
}

int listSettings(const Options& options, Console& console, const fernwick::clsQLProject& project) {
    auto json = jsonResult("settings");
    json["settings"] = Json::array();
    for (const auto& setting : storedSettings()) {
        if (options.format == Format::Json)
            json["settings"].push_back(jsonOfSetting(setting, project));
        else
            console.out(fmt::format("{}={}\n", setting.name, joinedValues(setting.read(project))));
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
    return kGood;
}

int getSetting(const Options& options, Console& console, const StoredSetting& setting,
               const fernwick::clsQLProject& project) {
    if (options.format == Format::Json) {
        auto json = jsonResult("settings");
        json["settings"] = Json::array({jsonOfSetting(setting, project)});
        console.out(dumpJson(json));
        return kGood;
    }
    for (const auto& value : setting.read(project)) console.out(value + "\n");
    return kGood;
}

/// Writes the values unless the project has them already.
void writeSetting(Session& session, const StoredSetting& setting, const std::vector<std::string>& values,
                  Console& console, bool dryRun) {
    auto& project = *session.settings();
    const auto before = setting.read(project);
    if (dryRun) {
        console.out(fmt::format("{}: {} -> {}\n", setting.name, joinedValues(before), joinedValues(values)));
        return;
    }
    const auto boxes = session.user().shown().size();
    setting.write(project, values);
    if (session.user().shown().size() > boxes)
        throw Refusal(kProjectErrors,
                      fmt::format("{} was not set: the project file cannot store this value", setting.name));
    console.detail(
        fmt::format("{}: {} -> {}", setting.name, joinedValues(before), joinedValues(setting.read(project))));
}

int setSetting(Session& session, const SettingOperands& operands, const Options& options, Console& console) {
    const auto& setting = settingOf(operands);
    if (const auto wrong = wrongWithValues(setting, operands.values); !wrong.empty()) throw Refusal(kWrongUse, wrong);
    if (setting.name == "TargetDevice") requireUsableDevice(session, operands.values.front());
    writeSetting(session, setting, operands.values, console, options.dryRun);
    return kGood;
}

int resetSettings(Session& session, const SettingOperands& operands, const Options& options, Console& console) {
    if (!operands.name.empty()) {
        const auto& setting = settingOf(operands);
        if (!setting.write) throw Refusal(kWrongUse, fmt::format("{} is read-only", setting.name));
        writeSetting(session, setting, setting.otherwise, console, options.dryRun);
        return kGood;
    }
    for (const auto& setting : storedSettings())
        if (setting.write && setting.read(*session.settings()) != setting.otherwise)
            writeSetting(session, setting, setting.otherwise, console, options.dryRun);
    return kGood;
}

int changeSettings(Session& session, const SettingOperands& operands, const Options& options, Console& console) {
    session.requireFernwickProject();
    const bool isSet = options.action == "set";
    const int status =
        isSet ? setSetting(session, operands, options, console) : resetSettings(session, operands, options, console);
    if (options.dryRun) {
        session.closeUnsaved();
        return status;
    }
    return session.closeAndSave() ? status : kMachineTrouble;
}

} // namespace

int runSettings(const Options& options, Console& console) {
    const auto operands = splitOperands(options.operands);
    Session session{options, console};
    session.open(operands.project);
    session.takeUp();
    if (options.action == "list") return listSettings(options, console, *session.settings());
    if (options.action == "get") return getSetting(options, console, settingOf(operands), *session.settings());
    return changeSettings(session, operands, options, console);
}

} // namespace cli
