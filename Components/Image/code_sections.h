#pragma once
// The sections of an image that hold its code.
#include "Components/Image/code/code_image.h"
#include "Components/Image/shared_text.h"
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace image {

/// A section's name and bytes.
using EncodedSection = std::pair<std::string_view, std::string>;
using Sections = std::unordered_map<std::string_view, std::string_view>;

/// Returns the sections of code, none if it is empty. Its texts must be the first of the string table. Raises error 321 for
/// code that the format cannot express.
std::vector<EncodedSection> encodeCode(const CodeImage& code);

/// Returns the code, empty if no section is one of code. Raises error 321 if they are damaged; whether the code makes sense
/// is left to the verifier.
CodeImage decodeCode(const Sections& sections, const std::vector<SharedText>& strings);

} // namespace image
