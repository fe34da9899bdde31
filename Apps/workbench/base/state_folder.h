#pragma once
#include <QString>

namespace workbench {

/// The folder for what the program keeps between runs, apart from settings. It may not exist yet.
QString stateFolder();

} // namespace workbench
