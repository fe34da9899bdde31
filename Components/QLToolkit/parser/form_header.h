#pragma once
// The block of properties at the top of a form's file.
#include "Components/Image/image.h"
#include "Components/QLToolkit/source/source_file.h"
#include <optional>

namespace compiler {

/// The form with its controls and properties; nothing for a file without a complete block. Members of a nested
/// block ("BeginProperty Font") are named with a point between ("Font.Size"). What follows ' behind a value is
/// the IDE's comment and left out.
std::optional<ImageControl> readFormHeader(const SourceFile& source);

} // namespace compiler
