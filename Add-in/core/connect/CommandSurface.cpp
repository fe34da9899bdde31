#include "Add-in/core/connect/CommandSurface.h"
#include "Add-in/core/connect/connect_texts.h"

namespace fernwick {

namespace {
constexpr int kSaveProjectId = 3;
}

CommandSurface::Control CommandSurface::saveProjectItem() {
    return addIn_.gVBInstance->CommandBars()->FindControl(kSaveProjectId);
}

/// The project stays: without the converter nothing better can be offered.
UnknownDeviceChoice CommandSurface::AskAboutUnknownDevice(const Project&) {
    notInThisBuild();
    return {true, {}};
}

void CommandSurface::notInThisBuild() {
    if (addIn_.gConnectMode == vbide::vbext_cm_CommandLine) return;
    user_.SetCursor(vbArrow); // commands that open a dialog wait for it with an hourglass
    user_.MsgBox(connect_texts::kNotInThisBuild, vbInformation, connect_texts::kTitle);
}

} // namespace fernwick
