#pragma once
// One entry of the samples menu.
#include "Add-in/platform/command_bars.h"
#include "Add-in/platform/files.h"
#include "Add-in/platform/host_events.h"
#include "Add-in/platform/with_events.h"

namespace fernwick {

/// It hears its own click and tells whoever opens samples, a room above.
class clsSampleMenuItem {
public:
    basic::Ref<office::CommandBarControl> myOfficeCommandBar;
    WithEvents<vbide::CommandBarEvents> myOfficeEvents{
        this, on(&vbide::CommandBarEvents::Click, &clsSampleMenuItem::myOfficeEvents_Click)};
    /// A popup has no click of its own.
    bool popupMenu = false;
    std::string Name;
    /// The sample's project file.
    std::string fullPath;
    /// The name of that file, and the folder that it lies in.
    std::string sampleVbp(const FileSystemObject& files) const { return files.GetFileName(fullPath); }
    std::string samplePath(const FileSystemObject& files) const { return files.GetParentFolderName(fullPath); }

    Event<clsSampleMenuItem&> picked;

private:
    void myOfficeEvents_Click() { picked.raise(*this); }
};

} // namespace fernwick
