#pragma once
#include "Apps/fernwick/stored/stored_settings.h"

namespace cli {

/// Returns the settings of all families, as the table of all settings has them.
std::vector<StoredSetting> pipeSettings();

} // namespace cli
