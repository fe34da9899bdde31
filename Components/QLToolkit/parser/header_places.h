#pragma once
// Where the controls of a form are in its file.
#include "Components/QLToolkit/source/source_text.h"

namespace qltoolkit {

/// Returns the position of the line that begins a control, or of the line of one of its own properties if `property` is
/// not empty; 0 if there is none. Ignores case.
[[nodiscard]] Pos placeInHeader(const SourceText& source, std::string_view control, std::string_view property = {});

} // namespace qltoolkit
