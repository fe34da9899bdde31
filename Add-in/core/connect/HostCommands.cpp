#include "Add-in/core/connect/HostCommands.h"

namespace fernwick {

namespace {
constexpr int kSaveProjectId = 3;
}

basic::Ref<office::CommandBarControl> HostCommands::saveProjectItem() {
    return addIn_.gVBInstance->CommandBars()->FindControl(kSaveProjectId);
}

basic::Ref<office::CommandBarControl> HostCommands::fileItem(int position) {
    return addIn_.gVBInstance->CommandBars()->Item("File")->Controls()->Item(position);
}

} // namespace fernwick
