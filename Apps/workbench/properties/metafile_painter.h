#pragma once
// Metafiles, which Qt cannot read.
#include <QImage>
#include <string_view>

namespace workbench {

/// Draws a metafile in its own size, on a transparent ground. Null for one that cannot be read.
QImage paintedMetafile(std::string_view bytes);

} // namespace workbench
