#pragma once
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/stored/stored_settings.h"
#include <map>

namespace cli {

/// Returns the settings, by name, of a new project for the device of the session's project: those of its template, with
/// what the device itself sets. Refusal 3 for a device that is not usable here.
std::map<std::string, StoredSetting::Values> newProjectSettings(Session& session);

} // namespace cli
