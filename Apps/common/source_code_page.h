#pragma once
#include "Host/model/host.h"

namespace apps {

/// Returns the code page in which the host has this source open; 1252 for one that is not open.
basic::CodePage codePageOfSource(host::Host& host, const std::string& path);

} // namespace apps
