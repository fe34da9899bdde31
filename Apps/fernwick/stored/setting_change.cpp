#include "Apps/fernwick/stored/setting_change.h"
#include "Apps/fernwick/options/exit_status.h"
#include "Host/model/project.h"
#include <fmt/format.h>

namespace cli {

namespace {

/// Before anything is written: the add-in would report an unexpected error.
void requireStorable(Session& session, const StoredSetting& setting, const StoredSetting::Values& values) {
    const auto project = basic::cast<host::Project>(session.project());
    if (!project) return;
    const auto& page = project->file().codePage();
    for (const auto& value : values)
        if (!page.tryEncode(value))
            throw Refusal(kProjectErrors,
                          fmt::format("{} was not set: the code page {} of the project file cannot store {}",
                                      setting.name, page.number(), value));
}

} // namespace

SettingChange changeSetting(Session& session, const StoredSetting& setting, const StoredSetting::Values& values,
                            bool dryRun) {
    auto& project = *session.settings();
    SettingChange change{setting, setting.read(project), values};
    requireStorable(session, setting, values);
    if (dryRun) return change;
    const auto boxes = session.user().shown().size();
    setting.write(*session.settings(), values);
    if (session.user().shown().size() > boxes)
        throw Refusal(kProjectErrors,
                      fmt::format("{} was not set: the project file cannot store this value", setting.name));
    change.after = setting.read(project);
    return change;
}

} // namespace cli
