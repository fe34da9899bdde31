#pragma once
// A report of what hinders a project on a device, as text.
#include "Apps/common/migration.h"

namespace apps {

/// Returns a path relative to the folder of the project.
[[nodiscard]] std::string shortPath(const Migration& migration, const std::string& path);

/// "Shop.vbp on PalmOS-DragonBall: 3 places to change".
[[nodiscard]] std::string summaryOf(const Migration& migration);

/// The summary, the counts, and each group; lines are at most 80 characters long unless names are longer.
[[nodiscard]] std::string textOf(const Migration& migration);

} // namespace apps
