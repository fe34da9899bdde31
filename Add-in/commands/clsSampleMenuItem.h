#pragma once
// An entry of the samples menu.
#include "Add-in/platform/command_bars.h"
#include "Add-in/platform/files.h"
#include "Add-in/platform/host_events.h"
#include "Add-in/platform/with_events.h"

namespace fernwick {

/// Handles the click on its item and raises `picked` for the room that opens samples.
class clsSampleMenuItem {
public:
    basic::Ref<office::CommandBarControl> myOfficeCommandBar;
    WithEvents<vbide::CommandBarEvents> myOfficeEvents{
        this, on(&vbide::CommandBarEvents::Click, &clsSampleMenuItem::myOfficeEvents_Click)};
    /// A popup is not clicked.
    bool popupMenu = false;
    std::string Name;
    /// The sample's project file.
    std::string fullPath;
    /// The name of that file and its folder.
    std::string sampleVbp(const FileSystemObject& files) const { return files.GetFileName(fullPath); }
    std::string samplePath(const FileSystemObject& files) const { return files.GetParentFolderName(fullPath); }

    Event<clsSampleMenuItem&> picked;

private:
    void myOfficeEvents_Click() { picked.raise(*this); }
};

} // namespace fernwick
