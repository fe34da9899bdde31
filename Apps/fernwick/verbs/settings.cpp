#include "Apps/common/file_names.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/project_run.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/verbs/new_project_settings.h"
#include "Apps/fernwick/verbs/stored_settings.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include "Host/model/project.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// The parsed operands: [PROJECT] [NAME [VALUE...]].
struct SettingOperands {
    std::string project, name;
    std::vector<std::string> values;
};

bool namesProject(const std::string& operand) {
    return apps::hasExtension(operand, ".vbp") || apps::hasExtension(operand, ".vbg");
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

std::string changeOf(const StoredSetting& setting, const std::vector<std::string>& before,
                     const std::vector<std::string>& after) {
    return fmt::format("{}: {} -> {}", setting.name, joinedValues(before), joinedValues(after));
}

/// Before anything is written: the add-in would report an unexpected error.
void requireStorable(Session& session, const StoredSetting& setting, const std::vector<std::string>& values) {
    const auto project = basic::cast<host::Project>(session.project());
    if (!project) return;
    const auto& page = project->file().codePage();
    for (const auto& value : values)
        if (!page.tryEncode(value))
            throw Refusal(kProjectErrors,
                          fmt::format("{} was not set: the code page {} of the project file cannot store {}",
                                      setting.name, page.number(), value));
}

/// Writes the values unless the project has them already.
void writeSetting(Session& session, const StoredSetting& setting, const std::vector<std::string>& values) {
    requireStorable(session, setting, values);
    const auto boxes = session.user().shown().size();
    setting.write(*session.settings(), values);
    if (session.user().shown().size() > boxes)
        throw Refusal(kProjectErrors,
                      fmt::format("{} was not set: the project file cannot store this value", setting.name));
}

int setSetting(Session& session, const SettingOperands& operands, const Options& options, Console& console) {
    const auto& setting = settingOf(operands);
    if (const auto wrong = wrongWithValues(setting, operands.values); !wrong.empty()) throw Refusal(kWrongUse, wrong);
    if (setting.name == "TargetDevice") requireUsableDevice(session, operands.values.front());
    const auto before = setting.read(*session.settings());
    if (options.dryRun) {
        console.out(changeOf(setting, before, operands.values) + "\n");
        return kGood;
    }
    writeSetting(session, setting, operands.values);
    console.detail(changeOf(setting, before, setting.read(*session.settings())));
    return kGood;
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
            if (setting.write) settings.push_back(&setting);
    return settings;
}

int resetSettings(Session& session, const SettingOperands& operands, const Options& options, Console& console) {
    const auto settings = settingsToReset(operands, options);
    const auto fresh = newProjectSettings(session);
    for (const auto* setting : settings) {
        const auto before = setting->read(*session.settings());
        const auto& after = fresh.at(setting->name);
        if (before == after) continue;
        if (!options.dryRun) writeSetting(session, *setting, after);
        if (options.format == Format::Text) console.out(changeOf(*setting, before, after) + "\n");
    }
    return kGood;
}

int changeSettings(Session& session, const SettingOperands& operands, const Options& options, Console& console) {
    session.requireFernwickProject();
    if (!options.dryRun) session.requireWritableProject();
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
    const bool writes = options.action == "set" || options.action == "reset";
    Session session{options, console};
    if (writes && !options.dryRun) session.lock(operands.project);
    session.open(operands.project);
    session.takeUp();
    if (options.action == "list") return listSettings(options, console, *session.settings());
    if (options.action == "get") return getSetting(options, console, settingOf(operands), *session.settings());
    return changeSettings(session, operands, options, console);
}

} // namespace cli
