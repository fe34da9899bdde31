#pragma once
// The commands that the host itself supplies. The add-in's own menu, toolbars and windows are not here yet: what
// would build or change them does nothing.
#include "Add-in/core/AddIn.h"
#include "Add-in/core/ide_commands.h"

namespace fernwick {

class HostCommands final : public IdeCommands {
public:
    explicit HostCommands(AddIn& addIn) : addIn_(addIn) {}

    bool SetUpQuinloftMenu(const basic::Ref<vbide::VBE>&) override { return true; }
    bool SetupQuinloftToolbar() override { return true; }
    bool SetupSupportToolbar() override { return true; }
    void RemoveQuinloftMenu() override {}
    void RemoveQuinloftToolbar() override {}
    void RemoveSupportToolbar() override {}
    void EnableQuinloftMenu() override {}
    void EnableQuinloftToolbar() override {}
    void EnableSupportToolbar() override {}
    void DisableQuinloftMenu() override {}
    void DisableQuinloftToolbar() override {}
    void DisableSupportToolbar() override {}
    void SetupDefaultTargetName(const std::string&) override {}

    basic::Ref<office::CommandBarControl> saveProjectItem() override;
    basic::Ref<office::CommandBarControl> gFileThirdItem() override { return fileItem(3); }
    basic::Ref<office::CommandBarControl> gFileFourthItem() override { return fileItem(4); }
    basic::Ref<office::CommandBarControl> FindConverterMenuItem() override { return nullptr; }

    void BackupClipboardData() override {}
    void RestoreClipboardData() override {}
    void createZoomWindow() override {}
    void InitZoomWindow() override {}
    void ShowGettingStarted() override {}
    void ShowProjectManagerOnDelay() override {}
    void ShowQuinloftSettings(const basic::Ref<vbide::VBProject>&, const std::string&, bool) override {}

private:
    basic::Ref<office::CommandBarControl> fileItem(int position);

    AddIn& addIn_;
};

} // namespace fernwick
