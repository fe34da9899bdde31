#include "Apps/fernwick/stored/setting_change.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Host/model/project.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// Before anything is written: the add-in would report an unexpected error.
void requireStorable(Session& session, const StoredSetting& setting, const StoredSetting::Values& values) {
    const auto project = basic::cast<host::Project>(session.project());
    if (!project || setting.isOfUser) return;
    const auto& page = project->file().codePage();
    for (const auto& value : values)
        if (!page.tryEncode(value))
            throw Refusal(kProjectErrors,
                          fmt::format("{} was not set: the code page {} of the project file cannot store {}",
                                      setting.name, page.number(), value));
}

void storeSetting(const StoredSetting& setting, const SettingPlace& place, const StoredSetting::Values& values) {
    const auto failed = basic::attempt([&] { setting.write(place, values); });
    if (failed.Number != 0)
        throw Refusal(kMachineTrouble, fmt::format("{} could not be stored; see fernwick doctor", setting.name));
}

} // namespace

SettingPlace placeOf(Session& session) {
    return {*session.settings(), session.machine().registry(), session.machine().classes()};
}

SettingChange changeSetting(Session& session, const StoredSetting& setting, const StoredSetting::Values& values,
                            bool dryRun) {
    const auto place = placeOf(session);
    SettingChange change{setting, setting.read(place), values};
    requireStorable(session, setting, values);
    if (dryRun) return change;
    const auto boxes = session.user().shown().size();
    storeSetting(setting, place, values);
    if (session.user().shown().size() > boxes)
        throw Refusal(kProjectErrors,
                      fmt::format("{} was not set: the project file cannot store this value", setting.name));
    change.after = setting.read(place);
    return change;
}

} // namespace cli
