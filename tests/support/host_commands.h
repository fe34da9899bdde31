#pragma once
// The commands of the upper rooms, told in the trace.
#include "Add-in/core/ide_commands.h"
#include "traced_host.h"
#include <functional>

namespace test {

class TracedCommands : public fernwick::IdeCommands {
public:
    explicit TracedCommands(Trace& trace)
        : save(basic::make<TracedControl>(trace, "host: save project")),
          remove(basic::make<TracedControl>(trace, "host: remove project")),
          trace_(trace) {}

    bool menuStands = true, toolbarStands = true, supportToolbarStands = true;
    Ref<TracedControl> save, remove, converter;
    /// What the user does in the settings.
    std::function<void()> inSettings = [] {};
    fernwick::UnknownDeviceChoice unknownDevice;
    /// Runs while the project manager stands.
    std::function<void()> inProjectManager;

    bool SetUpQuinloftMenu(const Ref<vbide::VBE>&) override { return did("menu"), menuStands; }
    bool SetupQuinloftToolbar() override { return did("toolbar"), toolbarStands; }
    bool SetupSupportToolbar() override { return did("support toolbar"), supportToolbarStands; }
    void RemoveQuinloftMenu() override { did("remove menu"); }
    void RemoveQuinloftToolbar() override { did("remove toolbar"); }
    void RemoveSupportToolbar() override { did("remove support toolbar"); }
    void EnableQuinloftMenu() override { did("enable menu"); }
    void EnableQuinloftToolbar() override { did("enable toolbar"); }
    void EnableSupportToolbar() override { did("enable support toolbar"); }
    void DisableQuinloftMenu() override { did("disable menu"); }
    void DisableQuinloftToolbar() override { did("disable toolbar"); }
    void DisableSupportToolbar() override { did("disable support toolbar"); }
    void SetupDefaultTargetName(const std::string& key) override { did("default target " + key); }
    void SaveAllToolbarState() override { did("save toolbars"); }
    void RestoreAllToolbarState() override { did("restore toolbars"); }
    Ref<office::CommandBarControl> saveProjectItem() override { return asked(save); }
    Ref<office::CommandBarControl> gFileThirdItem() override { return asked(save); }
    Ref<office::CommandBarControl> gFileFourthItem() override { return asked(remove); }
    Ref<office::CommandBarControl> FindConverterMenuItem() override { return asked(converter); }
    void BackupClipboardData() override { did("backup clipboard"); }
    void RestoreClipboardData() override { did("restore clipboard"); }
    void createZoomWindow() override { did("create zoom window"); }
    void InitZoomWindow() override { did("init zoom window"); }
    void SaveZoomWindowState() override { did("save zoom window"); }
    void SetZoomForm(const Ref<vbide::VBComponent>& form) override { did("zoom " + form->Name()); }
    void ShowGettingStarted() override { did("introduction"); }
    void ShowProjectManager() override {
        did("project manager stands");
        if (inProjectManager) inProjectManager();
    }
    void AddProjectToRecentList(const Ref<vbide::VBProject>& project) override { did("recent " + project->Name()); }
    fernwick::UnknownDeviceChoice AskAboutUnknownDevice(const Ref<vbide::VBProject>& project) override {
        return did("unknown device of " + project->Name()), unknownDevice;
    }
    void notInThisBuild() override { did("not in this build"); }
    void ShowProjectManagerOnDelay() override { did("project manager"); }
    void ShowQuinloftSettings(const Ref<vbide::VBProject>&, const std::string& page, bool) override {
        did("settings " + page);
        inSettings();
    }

private:
    void did(const std::string& what) { trace_.effect(what); }
    Ref<TracedControl> asked(const Ref<TracedControl>& control) {
        trace_.read();
        return control;
    }
    Trace& trace_;
};

} // namespace test
