#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/suggestions.h"
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

std::string unknownSetting(const std::string& name) {
    std::vector<std::string> names;
    for (const auto& setting : storedSettings()) names.push_back(setting.name);
    const auto near = didYouMean(name, names);
    return fmt::format("unknown setting {}{}", name, near.empty() ? "; see fernwick help settings" : near);
}

const StoredSetting& settingOf(const SettingOperands& operands) {
    const auto* setting = storedSettingNamed(operands.name);
    if (!setting)
        throw Refusal(kWrongUse, operands.name.empty() ? "no setting given; see fernwick help settings"
                                                       : unknownSetting(operands.name));
    return *setting;
}

std::string joinedValues(const std::vector<std::string>& values) {
    std::string text;
    for (const auto& value : values) text += (text.empty() ? "" : " | ") + value;
    return text;
}

Json jsonOfValues(const StoredSetting& setting, const StoredSetting::Values& values) {
    return setting.kind == SettingKind::List ? Json(values) : Json(values.front());
}

Json jsonOfSetting(const StoredSetting& setting, const fernwick::clsQLProject& project) {
    const auto values = setting.read(project);
    Json json{{"name", setting.name}};
    json["value"] = jsonOfValues(setting, values);
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

struct SettingChange {
    const StoredSetting& setting;
    StoredSetting::Values before, after;
};

/// Writes the value unless it is a dry run.
SettingChange changeSetting(Session& session, const StoredSetting& setting, const StoredSetting::Values& values,
                            bool dryRun) {
    auto& project = *session.settings();
    SettingChange change{setting, setting.read(project), values};
    if (dryRun) return change;
    const auto boxes = session.user().shown().size();
    setting.write(project, values);
    if (session.user().shown().size() > boxes)
        throw Refusal(kProjectErrors,
                      fmt::format("{} was not set: the project file cannot store this value", setting.name));
    change.after = setting.read(project);
    return change;
}

std::vector<SettingChange> setSetting(Session& session, const SettingOperands& operands, bool dryRun) {
    const auto& setting = settingOf(operands);
    if (const auto wrong = wrongWithValues(setting, operands.values); !wrong.empty()) throw Refusal(kWrongUse, wrong);
    auto values = operands.values;
    if (setting.name == "TargetDevice") values = {usableDevice(session, values.front())};
    return {changeSetting(session, setting, values, dryRun)};
}

std::vector<SettingChange> resetSettings(Session& session, const SettingOperands& operands, bool dryRun) {
    if (!operands.name.empty()) {
        const auto& setting = settingOf(operands);
        if (!setting.write) throw Refusal(kWrongUse, fmt::format("{} is read-only", setting.name));
        return {changeSetting(session, setting, setting.otherwise, dryRun)};
    }
    std::vector<SettingChange> changes;
    for (const auto& setting : storedSettings())
        if (setting.write && setting.read(*session.settings()) != setting.otherwise)
            changes.push_back(changeSetting(session, setting, setting.otherwise, dryRun));
    return changes;
}

Json jsonOfChanges(const std::vector<SettingChange>& changes, bool dryRun) {
    auto json = jsonResult("settings");
    json["dryRun"] = dryRun;
    json["changes"] = Json::array();
    for (const auto& [setting, before, after] : changes)
        json["changes"].push_back({{"name", setting.name},
                                   {"before", jsonOfValues(setting, before)},
                                   {"after", jsonOfValues(setting, after)}});
    return json;
}

void printChanges(const std::vector<SettingChange>& changes, const Options& options, Console& console) {
    if (options.format == Format::Json) return console.out(dumpJson(jsonOfChanges(changes, options.dryRun)));
    for (const auto& [setting, before, after] : changes) {
        const auto line = fmt::format("{}: {} -> {}", setting.name, joinedValues(before), joinedValues(after));
        options.dryRun ? console.out(line + "\n") : console.detail(line);
    }
}

int changeSettings(Session& session, const SettingOperands& operands, const Options& options, Console& console) {
    session.requireFernwickProject();
    const auto changes = options.action == "set" ? setSetting(session, operands, options.dryRun)
                                                 : resetSettings(session, operands, options.dryRun);
    if (options.dryRun)
        session.closeUnsaved();
    else if (!session.closeAndSave())
        throw Refusal(kMachineTrouble, session.path() + " cannot be saved");
    printChanges(changes, options, console);
    return kGood;
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
