#pragma once
// User-defined formats of texts.
#include "Components/Tamarik/format/picture.h"
#include <string>
#include <string_view>
#include <vector>

namespace tamarik {

/// Formats a text by the first section, or an empty one and Null by the second, if there is one. Placeholders are filled
/// from the right, with the characters for which there are none in front; after "!" from the left, with these at the end.
std::u16string formatText(std::u16string_view text, const std::vector<Picture>& sections);

} // namespace tamarik
