#pragma once
// The syntax of one statement, for the check of the line that the user leaves.
#include "Components/QLToolkit/source/diagnostic.h"
#include <optional>

namespace qltoolkit {

/// Returns the first error in a statement of a procedure, or in the head of one. Missing ends of blocks are no errors.
/// Lines and columns are those of the text, which may have several lines. Nothing for a declaration of another kind,
/// which other lines may be part of.
[[nodiscard]] std::optional<Diagnostic> errorOfStatement(std::string_view statement, bool isInProcedure);

} // namespace qltoolkit
