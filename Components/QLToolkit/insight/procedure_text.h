#pragma once
// The procedure around a position of a module's text.
#include <string_view>

namespace qltoolkit {

/// A part of the text, whole lines.
struct ProcedureText {
    std::size_t begin = 0, end = 0;
};

/// Returns the lines from the head of the procedure around a position to its end, or the statement around the position
/// outside of procedures. Reads no more of the text than the procedure and what is between two.
[[nodiscard]] ProcedureText procedureAround(std::string_view text, std::size_t pos);

} // namespace qltoolkit
