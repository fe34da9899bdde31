#pragma once
// The names of libraries in a line, as they are declared.
#include "Components/QLToolkit/insight/probe.h"

namespace qltoolkit {

/// Returns the names in a part of a text that mean something of a library. The text is a whole procedure as UTF-8, or a
/// statement outside of procedures.
[[nodiscard]] std::vector<std::string> libraryNamesIn(Snapshot& snapshot, int module, std::string_view text,
                                                      std::size_t begin, std::size_t end);

} // namespace qltoolkit
