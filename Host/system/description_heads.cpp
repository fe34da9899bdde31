#include "Host/system/description_heads.h"
#include "Host/system/file_state.h"

namespace host {

const TypeDescription& DescriptionHeads::of(const std::string& file) {
    const auto stamp = stampOf(fileState(file), {});
    const auto known = read_.find(file);
    if (known != read_.end() && known->second.stamp.sameFileState(stamp)) return known->second.description;
    return read_.insert_or_assign(file, Head{stamp, readTypeDescriptionHead(file)}).first->second.description;
}

} // namespace host
