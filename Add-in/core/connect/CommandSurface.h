#pragma once
// What the lower rooms reach of the menu, the toolbars and the dialogs.
#include "Add-in/commands/frmGettingStarted.h"
#include "Add-in/commands/modClipboardManagement.h"
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/commands/modToolbarManagement.h"
#include "Add-in/core/ide_commands.h"

namespace fernwick {

/// Passes each call on to the module that does the work. The zoom window, the project manager with its recent
/// projects, the converter and the settings are not here yet: what they would do when nobody asked for them is left
/// out without a word, and where a user asked, the desktop says that it isn't here.
class CommandSurface final : public IdeCommands {
public:
    using Control = basic::Ref<office::CommandBarControl>;
    using Project = basic::Ref<vbide::VBProject>;

    CommandSurface(Interaction& user, AddIn& addIn, CommandItems& items, modMenuManagement& menu,
                   modToolbarManagement& toolbars, modClipboardManagement& clipboard, frmGettingStarted& gettingStarted)
        : user_(user),
          addIn_(addIn),
          items_(items),
          menu_(menu),
          toolbars_(toolbars),
          clipboard_(clipboard),
          gettingStarted_(gettingStarted) {}

    bool SetUpQuinloftMenu(const basic::Ref<vbide::VBE>& VBInst) override { return menu_.SetUpQuinloftMenu(VBInst); }
    bool SetupQuinloftToolbar() override { return toolbars_.SetupQuinloftToolbar(); }
    bool SetupSupportToolbar() override { return toolbars_.SetupSupportToolbar(); }
    void RemoveQuinloftMenu() override { menu_.RemoveQuinloftMenu(); }
    void RemoveQuinloftToolbar() override { toolbars_.RemoveQuinloftToolbar(); }
    void RemoveSupportToolbar() override { toolbars_.RemoveSupportToolbar(); }
    void EnableQuinloftMenu() override { menu_.EnableQuinloftMenu(); }
    void EnableQuinloftToolbar() override { toolbars_.EnableQuinloftToolbar(); }
    void EnableSupportToolbar() override { toolbars_.EnableSupportToolbar(); }
    void DisableQuinloftMenu() override { menu_.DisableQuinloftMenu(); }
    void DisableQuinloftToolbar() override { toolbars_.DisableQuinloftToolbar(); }
    void DisableSupportToolbar() override { toolbars_.DisableSupportToolbar(); }
    void SetupDefaultTargetName(const std::string& deviceKey) override { menu_.SetupDefaultTargetName(deviceKey); }
    void SaveAllToolbarState() override { toolbars_.SaveAllToolbarState(); }
    void RestoreAllToolbarState() override { toolbars_.RestoreAllToolbarState(); }

    Control saveProjectItem() override;
    Control gFileThirdItem() override { return items_.gFileThirdItem; }
    Control gFileFourthItem() override { return items_.gFileFourthItem; }
    Control FindConverterMenuItem() override { return menu_.FindConverterMenuItem(); }

    void BackupClipboardData() override { clipboard_.BackupClipboardData(); }
    void RestoreClipboardData() override { clipboard_.RestoreClipboardData(); }

    void createZoomWindow() override {}
    void InitZoomWindow() override {}
    void SaveZoomWindowState() override {}
    void SetZoomForm(const basic::Ref<vbide::VBComponent>&) override {}
    void ShowGettingStarted() override { gettingStarted_.ShowModal(); }
    void ShowProjectManager() override { notInThisBuild(); }
    void ShowProjectManagerOnDelay() override { notInThisBuild(); }
    void AddProjectToRecentList(const Project&) override {}
    UnknownDeviceChoice AskAboutUnknownDevice(const Project&) override;
    void ShowQuinloftSettings(const Project&, const std::string&, bool) override { notInThisBuild(); }
    void notInThisBuild() override;

private:
    Interaction& user_;
    AddIn& addIn_;
    CommandItems& items_;
    modMenuManagement& menu_;
    modToolbarManagement& toolbars_;
    modClipboardManagement& clipboard_;
    frmGettingStarted& gettingStarted_;
};

} // namespace fernwick
