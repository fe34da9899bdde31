#pragma once
// Resource files of projects (.res): the 32-bit format of resource compilers.
#include "Components/Image/code/resources.h"
#include <string_view>
#include <vector>

namespace qltoolkit {

/// Returns the resources as an image has them. Of a resource in several languages, that of the United States counts, otherwise
/// the neutral or the first one. Error 321 with the reason for a damaged file.
[[nodiscard]] std::vector<image::Resource> readResources(std::string_view bytes);

} // namespace qltoolkit
