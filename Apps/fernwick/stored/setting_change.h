#pragma once
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/stored/stored_settings.h"

namespace cli {

struct SettingChange {
    const StoredSetting& setting;
    StoredSetting::Values before, after;
};

/// Writes the values unless it is a dry run. Refusal 1 if the project file cannot store them.
SettingChange changeSetting(Session& session, const StoredSetting& setting, const StoredSetting::Values& values,
                            bool dryRun);

} // namespace cli
