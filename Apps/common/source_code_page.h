#pragma once
#include "Apps/common/machine.h"
#include "Host/model/host.h"

namespace apps {

/// Lets the machine's compiler read each source in the code page in which the host has it open.
void compileInHostCodePages(Machine& machine, const std::shared_ptr<host::Host>& host);

} // namespace apps
