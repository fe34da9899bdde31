#pragma once
// A module's part of an image.
#include "Components/Image/image.h"
#include "Components/QLToolkit/parser/ast.h"

namespace qltoolkit {

/// Returns the VB_Name of a module, or "" if it has none.
std::string moduleName(const Module& module, const SymbolTable& symbols);

image::Module imageOf(const Module& module, const SymbolTable& symbols);

} // namespace qltoolkit
