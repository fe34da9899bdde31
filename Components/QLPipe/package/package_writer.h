#pragma once
// Writes an application into a package, a zip archive described in docs/package-format.md.
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/package/bundle.h"
#include "Components/QLPipe/package/ordered_work.h"
#include <string>

namespace qlpipe {

/// Returns "<ProjectName>.<DeviceKey>.qlpkg".
std::string packageName(const Bundle& bundle);

/// Writes the package to a temporary file and renames it, replacing an existing package. The same bundle produces the
/// same bytes, regardless of the number of threads. Files are read twice in chunks, once for the checksum and once for
/// packing. `sink` may be null; its events are raised in the calling thread. Throws TransferError and exceptions of the
/// sink.
void writePackage(const std::string& path, Bundle bundle, IQLPipeEvents* sink, unsigned threads = usualThreads());

} // namespace qlpipe
