#pragma once
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/stored/stored_settings.h"

namespace cli {

/// Where the settings of a session's project are.
SettingPlace placeOf(Session& session);

struct SettingChange {
    const StoredSetting& setting;
    StoredSetting::Values before, after;
};

/// Writes the values unless it is a dry run. Refusals: 1 if the project file cannot store them, 3 if they cannot be
/// written.
SettingChange changeSetting(Session& session, const StoredSetting& setting, const StoredSetting::Values& values,
                            bool dryRun);

} // namespace cli
