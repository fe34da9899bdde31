#include "Host/system/resources.h"
#include "Basic/runtime_error.h"

namespace host {

std::string Resources::LoadBitmap(int id) const {
    const auto path = files_.BuildPath(installation_, "VB Toolkit/Bin/Images/" + std::to_string(id) + ".bmp");
    if (installation_.empty()) throw basic::RuntimeError(basic::kFileNotFound);
    return files_.ReadBytes(path);
}

} // namespace host
