#include "Apps/workbench/bars/bar_face.h"
#include "Apps/workbench/base/pictures.h"

namespace workbench {

QIcon iconOfFace(const std::string& bmp) {
    const auto face = imageOf(bmp);
    if (face.isNull()) return {};
    QIcon icon;
    for (const int scale : {1, 2, 3}) icon.addPixmap(seeThrough(face, scale));
    return icon;
}

} // namespace workbench
