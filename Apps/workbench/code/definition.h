#pragma once
// Where a name is declared.
#include "Apps/workbench/code/code_finder.h"

namespace workbench {

/// A name in code, and what stands before its point, as "modMain" in "modMain.Start"; "" where there is none.
struct NameInCode {
    QString name, object;
};
/// The name at a column of a line, also right behind it. "" where no name stands there.
NameInCode nameAt(const QString& line, int column);

/// The declaration that a name at this place means: of the procedure that it stands in, then of its module, then what the
/// project's other modules offer in their order; a component's own name is the beginning of its code. Nothing for a name
/// that the project does not declare.
std::optional<CodePlace> definitionOf(const NameInCode& name, const CodePlace& at);

} // namespace workbench
