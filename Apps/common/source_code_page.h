#pragma once
#include "Apps/common/machine.h"
#include "Host/model/host.h"

namespace apps {

/// Returns the code page in which the host has this source open; 1252 for one that is not open.
basic::CodePage codePageOfSource(host::Host& host, const std::string& path);

/// Lets the machine's compiler read each source in the code page in which the host has it open.
void compileInHostCodePages(Machine& machine, const std::shared_ptr<host::Host>& host);

} // namespace apps
