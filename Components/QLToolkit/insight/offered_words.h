#pragma once
// The words of the language that completion offers.
#include "Components/QLToolkit/insight/name_list.h"

namespace qltoolkit {

/// Where a statement begins.
void addStatementWords(NameList& list);
/// Where a declaration begins, outside of procedures.
void addDeclarationWords(NameList& list);
/// Within expressions.
void addExpressionWords(NameList& list, bool isInClass);

} // namespace qltoolkit
