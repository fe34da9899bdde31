#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/suggestions.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/stored/new_project_settings.h"
#include "Apps/fernwick/stored/setting_change.h"
#include "Apps/fernwick/stored/stored_settings.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/printable.h"
#include "Components/QLPipe/settings/pipe_setting.h"
#include "Host/model/project.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// The parsed operands: [PROJECT] [NAME [VALUE...]].
struct SettingOperands {
    std::string project, name;
    std::vector<std::string> values;
};

SettingOperands splitOperands(std::vector<std::string> operands) {
    SettingOperands split;
    auto next = operands.begin();
    if (next != operands.end() && !storedSettingNamed(*next) && namesProject(*next)) split.project = *next++;
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

Json jsonOfSetting(const StoredSetting& setting, const SettingPlace& place) {
    Json json{{"name", setting.name}};
    json["value"] = jsonOfValues(setting, setting.read(place));
    json["default"] = jsonOfValues(setting, setting.otherwise);
    json["writable"] = setting.write != nullptr;
    json["meaning"] = setting.meaning;
    if (!setting.details.empty()) json["details"] = setting.details;
    json["storedIn"] = setting.isOfUser ? "user" : "project";
    if (setting.ignored)
        if (const auto ignored = setting.ignored(place); !ignored.empty()) json["ignored"] = ignored;
    return json;
}

/// Warns about the values of a project that only the user can determine.
void noteIgnored(const StoredSetting& setting, const SettingPlace& place, Console& console) {
    if (setting.ignored && !setting.ignored(place).empty())
        console.note(fmt::format("{}: the project's own value is ignored: {}", setting.name,
                                 basic::printable(setting.ignored(place))),
                     Tone::Warning);
}

int listSettings(const Options& options, Console& console, const SettingPlace& place) {
    auto json = jsonResult("settings");
    json["settings"] = Json::array();
    for (const auto& setting : storedSettings()) {
        noteIgnored(setting, place, console);
        if (options.format == Format::Json)
            json["settings"].push_back(jsonOfSetting(setting, place));
        else
            console.out(fmt::format("{}={}\n", setting.name, joinedValues(setting.read(place))));
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
    return kGood;
}

int getSetting(const Options& options, Console& console, const StoredSetting& setting, const SettingPlace& place) {
    noteIgnored(setting, place, console);
    if (options.format == Format::Json) {
        auto json = jsonResult("settings");
        json["settings"] = Json::array({jsonOfSetting(setting, place)});
        console.out(dumpJson(json));
        return kGood;
    }
    for (const auto& value : setting.read(place)) console.out(value + "\n");
    return kGood;
}

std::vector<SettingChange> setSetting(Session& session, const SettingOperands& operands, bool dryRun) {
    const auto& setting = settingOf(operands);
    if (const auto wrong = wrongWithValues(setting, operands.values); !wrong.empty()) throw Refusal(kWrongUse, wrong);
    auto values = operands.values;
    if (setting.problem)
        if (const auto why = setting.problem(placeOf(session), values); !why.empty())
            throw Refusal(kWrongUse, fmt::format("{} cannot be {}: {}", setting.name,
                                                 basic::printable(qlpipe::shortened(values.front())), why));
    if (setting.name == "TargetDevice") values = {usableDevice(session, values.front())};
    return {changeSetting(session, setting, values, dryRun)};
}

std::vector<const StoredSetting*> settingsToReset(const SettingOperands& operands, const Options& options) {
    std::vector<const StoredSetting*> settings;
    if (operands.name.empty() && !options.all)
        throw Refusal(kWrongUse, "settings reset expects the name of a setting, or --all");
    if (!operands.name.empty() && options.all)
        throw Refusal(kWrongUse, "settings reset takes a name or --all, not both");
    if (!operands.name.empty()) settings.push_back(&writableSetting(settingOf(operands)));
    if (options.all)
        for (const auto& setting : storedSettings())
            if (setting.write && !setting.isOfUser) settings.push_back(&setting);
    return settings;
}

std::vector<SettingChange> resetSettings(Session& session, const SettingOperands& operands, const Options& options) {
    std::vector<SettingChange> changes;
    const auto settings = settingsToReset(operands, options);
    const auto fresh = newProjectSettings(session);
    for (const auto* setting : settings)
        if (const auto& after = fresh.at(setting->name); setting->read(placeOf(session)) != after)
            changes.push_back(changeSetting(session, *setting, after, options.dryRun));
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

/// A user who sets a value knows what changes; one who resets does not.
void printChanges(const std::vector<SettingChange>& changes, const Options& options, Console& console) {
    if (options.format == Format::Json) return console.out(dumpJson(jsonOfChanges(changes, options.dryRun)));
    for (const auto& [setting, before, after] : changes) {
        const auto line = fmt::format("{}: {} -> {}", setting.name, joinedValues(before), joinedValues(after));
        options.dryRun || options.action == "reset" ? console.out(line + "\n") : console.detail(line);
    }
}

int changeSettings(Session& session, const SettingOperands& operands, const Options& options, Console& console) {
    session.requireFernwickProject();
    if (!options.dryRun) session.requireWritableProject();
    const auto changes = options.action == "set" ? setSetting(session, operands, options.dryRun)
                                                 : resetSettings(session, operands, options);
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
    if (options.action != "set" && !operands.values.empty())
        throw Refusal(kWrongUse,
                      fmt::format("settings {}: {} is one operand too many", options.action, operands.values.front()));
    const bool writes = options.action == "set" || options.action == "reset";
    Session session{options, console};
    if (writes && !options.dryRun) session.lock(operands.project);
    session.open(operands.project);
    session.takeUp();
    if (options.action == "list") return listSettings(options, console, placeOf(session));
    if (options.action == "get") return getSetting(options, console, settingOf(operands), placeOf(session));
    return changeSettings(session, operands, options, console);
}

} // namespace cli
