#pragma once
// The order in which a name is looked up.
#include "Components/QLToolkit/names/program.h"
#include <utility>

namespace qltoolkit {

/// The meaning of a name in a module, outside procedures. Source: the published language specification, 5.6.10.
struct FoundName {
    Entity* entity = nullptr;
    bool isAmbiguous = false; ///< declared by several standard modules
};

/// Looks in the module, among the project's modules and the libraries' names, in the public names of other modules, and
/// in the libraries, in this order.
[[nodiscard]] FoundName findName(const Program& program, const Scope& module, Symbol name);

/// The same for the type after As; `library` qualifies it unless it is None.
[[nodiscard]] const Entity* findType(const Program& program, const Scope& module, Symbol library, Symbol name);

/// The part of a source that a name at a position covers, without brackets and type character.
[[nodiscard]] std::pair<Pos, Pos> extentOfName(const SourceText& source, Pos pos);

/// Returns the name at a position, in its own spelling there, as UTF-8.
[[nodiscard]] std::string nameAt(const SourceText& source, Pos pos);

} // namespace qltoolkit
