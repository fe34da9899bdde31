#pragma once
// Warnings of what a program uses and devices lack.
#include "Components/QLToolkit/names/program.h"

namespace qltoolkit {

/// What using a procedure or property is about, by what it belongs to.
[[nodiscard]] Lack lackOf(const Program& program, const Entity& entity);

/// Warns of a use under the name that the program gives it, with what to use instead.
void reportLack(const Program& program, Diagnostics& diagnostics, Lack lack, const Entity& entity, Pos pos,
                std::string_view name);

} // namespace qltoolkit
