#pragma once
// What the lower rooms need of the upper ones.
#include "Add-in/platform/host.h"
#include <string>

namespace fernwick {

/// What a user wants of a project whose device is not available here.
struct UnknownDeviceChoice {
    /// The project stays open as it is.
    bool accepted = false;
    /// Else the project that takes its place; "" for none.
    std::string replacementPath;
};

/// The one interface through which a room reaches what lies above it: the command surface, the zoom window and
/// the dialogs. Implemented and wired at the top. A call whose feature this build does not have does nothing.
class IdeCommands {
public:
    virtual ~IdeCommands() = default;

    // Menu and toolbars. A set-up answers True when its bar stands.
    virtual bool SetUpQuinloftMenu(const basic::Ref<vbide::VBE>& VBInst) = 0;
    virtual bool SetupQuinloftToolbar() = 0;
    virtual bool SetupSupportToolbar() = 0;
    virtual void RemoveQuinloftMenu() = 0;
    virtual void RemoveQuinloftToolbar() = 0;
    virtual void RemoveSupportToolbar() = 0;
    virtual void EnableQuinloftMenu() = 0;
    virtual void EnableQuinloftToolbar() = 0;
    virtual void EnableSupportToolbar() = 0;
    virtual void DisableQuinloftMenu() = 0;
    virtual void DisableQuinloftToolbar() = 0;
    virtual void DisableSupportToolbar() = 0;
    virtual void SetupDefaultTargetName(const std::string& deviceKey) = 0;
    /// Where the toolbars stand, in the user's store.
    virtual void SaveAllToolbarState() = 0;
    virtual void RestoreAllToolbarState() = 0;

    /// The host's save-project command, found by its id 3.
    virtual basic::Ref<office::CommandBarControl> saveProjectItem() = 0;
    /// The third and fourth controls of the host's File menu; the fourth removes the active project.
    virtual basic::Ref<office::CommandBarControl> gFileThirdItem() = 0;
    virtual basic::Ref<office::CommandBarControl> gFileFourthItem() = 0;
    /// The menu item of the project importer, Nothing where there is none.
    virtual basic::Ref<office::CommandBarControl> FindConverterMenuItem() = 0;

    virtual void BackupClipboardData() = 0;
    virtual void RestoreClipboardData() = 0;

    virtual void createZoomWindow() = 0;
    virtual void InitZoomWindow() = 0;
    virtual void SaveZoomWindowState() = 0;
    /// The zoom window follows this form's designer.
    virtual void SetZoomForm(const basic::Ref<vbide::VBComponent>& form) = 0;
    virtual void ShowGettingStarted() = 0;
    /// Returns when the project manager has closed.
    virtual void ShowProjectManager() = 0;
    virtual void ShowProjectManagerOnDelay() = 0;
    virtual void AddProjectToRecentList(const basic::Ref<vbide::VBProject>& project) = 0;
    virtual UnknownDeviceChoice AskAboutUnknownDevice(const basic::Ref<vbide::VBProject>& project) = 0;
    /// Opens the settings dialog on a page, and returns when it has closed.
    virtual void ShowQuinloftSettings(const basic::Ref<vbide::VBProject>& project, const std::string& pageName,
                                      bool scanOnActivate) = 0;
    /// Tells who picked a command that it leads to what this build doesn't have.
    virtual void notInThisBuild() = 0;
};

} // namespace fernwick
