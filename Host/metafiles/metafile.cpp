#include "Host/metafiles/metafile.h"
#include "Host/metafiles/readers.h"

namespace host {

std::optional<Metafile> readMetafile(std::string_view bytes) {
    if (isEnhancedMetafile(bytes)) return readEnhancedMetafile(bytes);
    if (isWindowsMetafile(bytes)) return readWindowsMetafile(bytes);
    return {};
}

} // namespace host
