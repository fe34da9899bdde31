#include "Apps/fernwick/stored/stored_settings.h"
#include "Add-in/core/stored_lists.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/stored/pipe_settings.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"
#include <algorithm>
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::ProjectSetting;
using Values = StoredSetting::Values;

/// The setting at `index` of the add-in's list, which is the same for every project.
StoredSetting projectSetting(const ProjectSetting& setting, std::size_t index) {
    StoredSetting row{setting.name(),
                      setting.meaning(),
                      setting.kind(),
                      setting.defaults(),
                      [index](const SettingPlace& place) { return place.project.settings()[index]->values(); },
                      nullptr};
    if (setting.isWritable())
        row.write = [index](const SettingPlace& place, const Values& values) {
            place.project.settings()[index]->assign(values);
        };
    return row;
}

/// Those of the pipes precede the lists that only a build writes.
std::vector<StoredSetting> makeSettingTable() {
    std::vector<StoredSetting> table;
    const fernwick::ProjectSettings described{nullptr};
    for (const auto* setting : described.settings()) table.push_back(projectSetting(*setting, table.size()));
    const auto builtList = std::find_if(table.begin(), table.end(),
                                        [](const auto& row) { return row.kind == SettingKind::List && !row.write; });
    const auto ofPipes = pipeSettings();
    table.insert(builtList, ofPipes.begin(), ofPipes.end());
    return table;
}

} // namespace

std::span<const StoredSetting> storedSettings() {
    static const auto table = makeSettingTable();
    return table;
}

const StoredSetting* storedSettingNamed(std::string_view name) {
    for (const auto& setting : storedSettings())
        if (basic::equalNoCase(setting.name, name)) return &setting;
    return nullptr;
}

const StoredSetting& writableSetting(const StoredSetting& setting) {
    if (!setting.write) throw Refusal(kWrongUse, fmt::format("{} is read-only", setting.name));
    return setting;
}

std::string wrongWithValues(const StoredSetting& setting, const Values& values) {
    (void)writableSetting(setting);
    for (const auto& value : values)
        if (value.find_first_of("\r\n") != value.npos) return "a stored value must not contain line breaks";
    if (setting.kind == SettingKind::List)
        return values.size() > fernwick::kMostStoredEntries
                   ? fmt::format("{} takes at most {} values", setting.name, fernwick::kMostStoredEntries)
                   : std::string();
    if (values.size() != 1) return fmt::format("{} takes one value", setting.name);
    const auto err = basic::attempt([&] {
        if (setting.kind == SettingKind::Number) (void)basic::CLng(values.front());
        if (setting.kind == SettingKind::Decimal) (void)basic::CSng(values.front());
        if (setting.kind == SettingKind::Boolean) (void)basic::CBool(values.front());
    });
    return err.Number == 0 ? std::string()
                           : fmt::format("{} takes a {}, not {}", setting.name,
                                         setting.kind == SettingKind::Boolean ? "Boolean (True or False)" : "number",
                                         values.front());
}

} // namespace cli
