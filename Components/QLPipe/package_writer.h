#pragma once
// Writes an application as a package, a zip archive that docs/package-format.md describes.
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/bundle.h"
#include <string>

namespace qlpipe {

/// "<ProjectName>.<DeviceKey>.qlpkg".
std::string packageName(const Bundle& bundle);

/// Written beside its place and renamed; what stood there is replaced. The same bundle gives the same bytes. Files are read
/// twice, for their checksums and for packing, a chunk at a time. `sink` may be null. Throws TransferError and what the sink
/// lets out.
void writePackage(const std::string& path, Bundle bundle, IQLPipeEvents* sink);

} // namespace qlpipe
