#pragma once
// The block of properties at the top of a form's file.
#include "Components/Image/image.h"
#include "Components/QLToolkit/source/source_text.h"
#include <optional>

namespace qltoolkit {

/// The form with its controls and properties; nothing for a file without a complete block. Members of a nested
/// block ("BeginProperty Font") are named with a point between ("Font.Size"). What follows ' behind a value is
/// the IDE's comment and left out.
std::optional<image::Control> readFormHeader(const SourceText& source);

} // namespace qltoolkit
