#pragma once
// The property block at the top of a form's file.
#include "Components/Image/image.h"
#include "Components/QLToolkit/source/source_text.h"
#include <optional>
#include <string_view>

namespace qltoolkit {

/// Returns the form with its controls and properties, or nothing for a class and a file without a complete block. Members of a
/// nested block ("BeginProperty Font") get dotted names ("Font.Size"). Comments after values are dropped.
std::optional<image::Control> readFormHeader(const SourceText& source);

/// Returns a line of the block without the blanks and tabs at both ends.
[[nodiscard]] std::string_view trimmedHeaderText(std::string_view text);

} // namespace qltoolkit
