#pragma once
// What an image holds of a module.
#include "Components/Image/image.h"
#include "Components/QLToolkit/parser/ast.h"

namespace qltoolkit {

/// The VB_Name of a module; "" where it has none.
std::string moduleName(const Module& module, const SymbolTable& symbols);

image::Module imageOf(const Module& module, const SymbolTable& symbols);

} // namespace qltoolkit
