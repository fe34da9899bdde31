#pragma once
#include "Apps/common/machine.h"
#include "Host/model/host.h"
#include <memory>

namespace apps {

/// Lets the machine's compiler ask the host what it knows of its open projects: the code pages of sources, which the user may
/// have changed, and resource files.
void compileOpenProjects(Machine& machine, const std::shared_ptr<host::Host>& host);

} // namespace apps
