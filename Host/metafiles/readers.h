#pragma once
// The two formats.
#include "Host/metafiles/metafile.h"
#include <optional>
#include <string_view>

namespace host {

/// With or without the header of a placeable metafile.
std::optional<Metafile> readWindowsMetafile(std::string_view bytes);
std::optional<Metafile> readEnhancedMetafile(std::string_view bytes);

bool isWindowsMetafile(std::string_view bytes);
bool isEnhancedMetafile(std::string_view bytes);

} // namespace host
