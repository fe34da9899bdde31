#pragma once
// The description of a type library as the compiler reads libraries.
#include "Components/Language/library.h"
#include "Host/system/type_description.h"

namespace host {

/// Returns the modules, enumerations and classes of a description. A library with controls has the name that programs
/// use for it, with "Ctl" at its end. The class of the form has the members of the class that it extends, without those
/// that devices lack.
[[nodiscard]] language::Library libraryOf(const TypeDescription& description);

} // namespace host
