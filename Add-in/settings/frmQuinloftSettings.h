#pragma once
// The dialog in which the settings of a project and of the user are edited, one page at a time.
#include "Add-in/core/settings_dialog.h"
#include "Add-in/platform/tree_view.h"
#include "Add-in/settings/app_name_page.h"
#include "Add-in/settings/compile_targets_page.h"
#include "Add-in/settings/compiler_page.h"
#include "Add-in/settings/dependencies_page.h"
#include "Add-in/settings/my_devices_page.h"
#include "Add-in/settings/pipe_pages.h"

namespace fernwick {

class frmQuinloftSettings final : public Form, public SettingsDialog {
public:
    explicit frmQuinloftSettings(const SettingsServices& services);
    const char* typeName() const override { return "frmQuinloftSettings"; }

    PictureBox Picture1{this, "Picture1", "Properties"};
    Label txtSubdialogTitle{this, "txtSubdialogTitle"};
    TreeView treAvailableSettings{this, "treAvailableSettings", &frmQuinloftSettings::treAvailableSettings_NodeClick};
    CommandButton btnOK{this, "btnOK", "OK", &frmQuinloftSettings::btnOK_Click};
    CommandButton btnCancel{this, "btnCancel", "Cancel", &frmQuinloftSettings::btnCancel_Click};
    CommandButton btnApply{this, "btnApply", "App&ly", &frmQuinloftSettings::btnApply_Click};
    CommandButton btnHelp{this, "btnHelp", "&Help", &frmQuinloftSettings::btnHelp_Click};

    void ShowQuinloftSettings(const basic::Ref<vbide::VBProject>& project, const std::string& pageName,
                              bool scanOnActivate) override;

    /// Nothing if only the settings of the user are edited.
    basic::Ref<clsQLProject> WorkingProject;
    /// The page that was shown last; stored in the project.
    std::string LastSettingsDialog;
    /// The page that is shown; "" for none.
    std::string CurrentDialog;
    bool ScanOnActivate = false;

private:
    // Before the pages, which use it.
    SettingsServices services_;

public:
    AppNamePage appName{this, services_, WorkingProject};
    DependenciesPage dependencies{this, services_, WorkingProject};
    CompilerPage compiler{this, services_, WorkingProject};
    MyDevicesPage myDevices{this, services_};
    CompileTargetsPage compileTargets{this};
    PipePages pipes{this, services_};

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override { pipes.CleanUpPipes(); }

private:
    struct Page {
        const char* name;
        Frame* frame;
    };
    std::vector<Page> pages();

    void displayAvailableSettings();
    void treAvailableSettings_NodeClick(const std::string& key);
    void switchSubDialogFrames(const std::string& newDialog, bool& ok);
    void showSubDialogFrame(const std::string& name);
    void hideSubDialogFrame(const std::string& name, bool& hidden);
    void openOn(Procedure& here, const std::string& pageName);
    std::string firstPage(Procedure& here, const std::string& pageName) const;
    void applyChanges(bool& ok);
    void saveLastDialog(Procedure& here);
    void btnOK_Click();
    void btnCancel_Click();
    void btnApply_Click();
    void btnHelp_Click();
};

} // namespace fernwick
