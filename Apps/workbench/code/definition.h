#pragma once
// Finds the declaration of a name.
#include "Apps/workbench/code/code_finder.h"

namespace workbench {

/// A name in code, and the object before its point, such as "modMain" in "modMain.Start"; "" if there is none.
struct NameInCode {
    QString name, object;
};
/// Returns the name at a column of a line or just before the column; "" if there is none.
NameInCode nameAt(const QString& line, int column);

/// Returns the declaration of a name used at this place. Searches its procedure, its module, then the public names of
/// the project's other modules in order. A component's name leads to the start of its code. Empty for a name that the
/// project does not declare.
std::optional<CodePlace> definitionOf(const NameInCode& name, const CodePlace& at);

} // namespace workbench
