#pragma once
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/stored/dependency_operands.h"

namespace cli {

/// Whether the file of an entry does not exist.
bool isMissing(Session& session, const fernwick::tResource& entry);

/// `dependencies add` and `remove`: changes the stored list, saves the project and returns the exit status.
int changeDependencies(Session& session, const DependencyOperands& operands, Console& console);

} // namespace cli
