#pragma once
// The head of a procedure or event as its module declares it.
#include "Add-in/platform/host_project.h"
#include <string>

namespace workbench {

/// A logical line: continued lines are joined, with one blank between words.
std::string statementAt(vbide::CodeModule& module, int line);

struct DeclaredHead {
    std::string keyword;    ///< the word before the name: "Function"
    std::string parameters; ///< the text between the parentheses
    std::string result;     ///< " As Long"; "" without one
};
/// `name` is declared in the statement.
DeclaredHead headOf(const std::string& statement, const std::string& name);

} // namespace workbench
