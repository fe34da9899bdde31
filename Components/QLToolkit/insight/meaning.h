#pragma once
// What a name in the code means, for quick info.
#include "Components/QLToolkit/insight/probe.h"

namespace qltoolkit {

/// Returns how the name at a position of a procedure's text is declared, or "" for none. `procedure` is the whole text of
/// the procedure as UTF-8, or a statement outside of procedures.
[[nodiscard]] std::string quickInfo(Snapshot& snapshot, int module, std::string_view procedure, std::size_t pos);

/// What a name means outside of procedures; null if it is not declared.
[[nodiscard]] const Entity* declaredName(Snapshot& snapshot, int module, std::string_view name);

} // namespace qltoolkit
