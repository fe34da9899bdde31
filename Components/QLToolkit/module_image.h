#pragma once
// A module's part of an image.
#include "Components/Image/image.h"
#include "Components/QLToolkit/parser/ast.h"

namespace qltoolkit {

image::Module imageOf(const Module& module, const SymbolTable& symbols);

} // namespace qltoolkit
