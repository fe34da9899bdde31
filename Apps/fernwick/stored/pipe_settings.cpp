#include "Apps/fernwick/stored/pipe_settings.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include "Components/QLPipe/pipe_family.h"

namespace cli {

namespace {

using qlpipe::PipeFamily;
using qlpipe::PipeSetting;
using Values = StoredSetting::Values;

/// The device whose limits apply, and for which the user's settings are stored.
std::string deviceOf(const SettingPlace& place, const PipeFamily& family) {
    return qlpipe::deviceToCheckFor(place.classes, place.project.VBProject(), family.name);
}

std::string projectValue(const SettingPlace& place, const PipeFamily& family, const PipeSetting& row) {
    std::string value;
    (void)basic::attempt([&] { value = place.project.VBProject()->ReadProperty(family.settings.section, row.key); });
    return value;
}

StoredSetting describedSetting(const PipeFamily& family, const PipeSetting& row) {
    StoredSetting setting{row.name, row.meaning, SettingKind::Text, {""}, nullptr, nullptr};
    setting.details = qlpipe::detailsOf(row);
    setting.problem = [&family, &row](const SettingPlace& place, const Values& values) {
        return qlpipe::problemOf(row, values.front(), qlpipe::limitsOf(place.classes, deviceOf(place, family)));
    };
    return setting;
}

StoredSetting settingOfProject(const PipeFamily& family, const PipeSetting& row) {
    auto setting = describedSetting(family, row);
    setting.read = [&family, &row](const SettingPlace& place) { return Values{projectValue(place, family, row)}; };
    setting.write = [&family, &row](const SettingPlace& place, const Values& values) {
        if (projectValue(place, family, row) != values.front())
            place.project.VBProject()->WriteProperty(family.settings.section, row.key, values.front());
    };
    return setting;
}

StoredSetting settingOfUser(const PipeFamily& family, const PipeSetting& row) {
    auto setting = describedSetting(family, row);
    setting.isOfUser = true;
    setting.read = [&family, &row](const SettingPlace& place) {
        return Values{qlpipe::readUserSettings(place.registry, deviceOf(place, family)).*row.connection};
    };
    setting.write = [&family, &row](const SettingPlace& place, const Values& values) {
        const auto device = deviceOf(place, family);
        if (device.empty()) throw basic::RuntimeError(basic::kInvalidProcedureCall);
        auto settings = qlpipe::readUserSettings(place.registry, device);
        settings.*row.connection = values.front();
        qlpipe::writeUserSettings(place.registry, device, settings);
    };
    setting.ignored = [&family, &row](const SettingPlace& place) { return projectValue(place, family, row); };
    return setting;
}

} // namespace

std::vector<StoredSetting> pipeSettings() {
    std::vector<StoredSetting> settings;
    for (const auto& family : qlpipe::pipeFamilies())
        for (const auto& row : family.settings.rows)
            settings.push_back(row.isOfUser ? settingOfUser(family, row) : settingOfProject(family, row));
    return settings;
}

} // namespace cli
