#include "Apps/workbench/base/state_folder.h"
#include <QDir>

namespace workbench {

QString stateFolder() {
    const auto state = qEnvironmentVariable("XDG_STATE_HOME");
    return (QDir::isAbsolutePath(state) ? state : QDir::homePath() + "/.local/state") + "/fernwick";
}

} // namespace workbench
