#include "Add-in/core/connect/not_in_this_build.h"
#include "Add-in/core/connect/connect_texts.h"

namespace fernwick {

void NotInThisBuild::notInThisBuild() {
    if (addIn_.gConnectMode == vbide::vbext_cm_CommandLine) return;
    user_.MsgBox(connect_texts::kNotInThisBuild, vbInformation, connect_texts::kTitle);
}

} // namespace fernwick
