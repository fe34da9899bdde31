#include "Add-in/settings/frmQuinloftSettings.h"
#include "Add-in/settings/settings_constants.h"
#include "Add-in/settings/settings_texts.h"
#include <utility>

namespace fernwick {

using namespace settings_texts;

namespace {

void showFrame(Frame& frame) {
    frame.Top(kPageTop);
    frame.Left(kPageLeft);
    frame.Visible(true);
}

void hideFrame(Frame& frame) {
    frame.Top(kHiddenPageTop);
    frame.Visible(false);
}

} // namespace

frmQuinloftSettings::frmQuinloftSettings(const SettingsServices& services)
    : Form(services.platform.interaction), services_(services) {
    Caption.design(kCaption);
    btnOK.Default = true;
    btnCancel.Cancel = true;
    CloseBoxCancels = true;
}

std::vector<frmQuinloftSettings::Page> frmQuinloftSettings::pages() {
    return {{kAppNamePage, &appName.fraAppName},
            {kCompileTargetsPage, &compileTargets.fraCompileTargets},
            {kDependenciesPage, &dependencies.fraDependencies},
            {kCompilerSettingsPage, &compiler.fraCompilerOptions},
            {kMyDevicesPage, &myDevices.fraMyDevices}};
}

void frmQuinloftSettings::ShowQuinloftSettings(const basic::Ref<vbide::VBProject>& project, const std::string& pageName,
                                               bool scanOnActivate) {
    Procedure here{services_.errors, "frmQuinloftSettings.ShowQuinloftSettings"};
    here([&] { Load(); });
    WorkingProject = project ? here.value([&] { return services_.projects.GetQLProject(project); }) : nullptr;
    if (WorkingProject) {
        pipes.SetupPipeFrames();
        appName.SetupAppNameFrame();
        compiler.SetupCompilerOptionsFrame();
    }
    myDevices.fill();
    displayAvailableSettings();
    openOn(here, pageName);
    if (WorkingProject) {
        here([&] { treAvailableSettings.Text(kProjectRoot, WorkingProject->ProjectName() + kProjectRootSuffix); });
        dependencies.setUp();
    }
    ScanOnActivate = scanOnActivate;
    txtSubdialogTitle.Caption(kCaption);
    here([&] { services_.platform.interaction.SetCursor(vbArrow); });
    here([&] { ShowModal(); });
    WorkingProject = nullptr;
}

void frmQuinloftSettings::Form_Load() {
    Procedure here{services_.errors, "frmQuinloftSettings.Form_Load"};
    CurrentDialog.clear();
    LastSettingsDialog.clear();
    treAvailableSettings.Clear();
    here([&] { pipes.CleanUpPipes(); });
}

void frmQuinloftSettings::Form_Activate() {
    Procedure here{services_.errors, "frmQuinloftSettings.Form_Activate"};
    here([&] { appName.chkSpacesInName_Click(); });
    if (!std::exchange(ScanOnActivate, false)) return;
    here([&] { dependencies.btnScanforDependencies_Click(); });
}

void frmQuinloftSettings::displayAvailableSettings() {
    Procedure here{services_.errors, "frmQuinloftSettings.displayAvailableSettings"};
    const auto add = [&](const char* root, const std::string& page) {
        here([&] { treAvailableSettings.Add(root, page, page); });
    };
    if (WorkingProject) {
        add("", kProjectRoot);
        add(kProjectRoot, kAppNamePage);
        add(kProjectRoot, kDependenciesPage);
        for (const auto& dialog : pipes.PipeDialogs) add(kProjectRoot, dialog.Name);
        add(kProjectRoot, kCompilerSettingsPage);
        here([&] { treAvailableSettings.Expanded(kProjectRoot, true); });
    }
    add("", kGeneralRoot);
    add(kGeneralRoot, kMyDevicesPage);
    here([&] { treAvailableSettings.Expanded(kGeneralRoot, true); });
}

std::string frmQuinloftSettings::firstPage(Procedure& here, const std::string& pageName) const {
    if (!WorkingProject) return kMyDevicesPage;
    if (pageName != kAnySettingsPage) return pageName;
    const auto last = here.value([&] { return WorkingProject->GetLastSettingsDialog(); });
    return last.empty() ? kAppNamePage : last;
}

/// The project's first page is in its place under whatever page the dialog opens on, if there is one of that name.
void frmQuinloftSettings::openOn(Procedure& here, const std::string& pageName) {
    bool ok = false;
    if (WorkingProject) showSubDialogFrame(kAppNamePage);
    const auto page = firstPage(here, pageName);
    if (page != kAppNamePage) hideFrame(appName.fraAppName);
    switchSubDialogFrames(page, ok);
    here([&] { treAvailableSettings.SelectedItem(page); });
}

void frmQuinloftSettings::treAvailableSettings_NodeClick(const std::string& key) {
    Procedure here{services_.errors, "frmQuinloftSettings.treAvailableSettings_NodeClick"};
    bool ok = false;
    switchSubDialogFrames(key, ok);
    if (ok) return;
    if (treAvailableSettings.has(CurrentDialog))
        treAvailableSettings.SelectedItem(CurrentDialog);
    else
        treAvailableSettings.Deselect();
}

void frmQuinloftSettings::switchSubDialogFrames(const std::string& newDialog, bool& ok) {
    ok = false;
    if (newDialog == kProjectRoot || newDialog == kGeneralRoot) return;
    bool hidden = false;
    hideSubDialogFrame(CurrentDialog, hidden);
    if (!hidden) return;
    showSubDialogFrame(newDialog);
    CurrentDialog = newDialog;
    ok = true;
}

void frmQuinloftSettings::showSubDialogFrame(const std::string& name) {
    Procedure here{services_.errors, "frmQuinloftSettings.showSubDialogFrame"};
    for (const auto& page : pages())
        if (page.name == name) {
            showFrame(*page.frame);
            LastSettingsDialog = name;
            return;
        }
    auto* const dialog = pipes.find(name);
    if (!dialog) return;
    here([&] { dialog->Object->ShowPage(); });
    dialog->Visited = true;
    LastSettingsDialog = name;
}

void frmQuinloftSettings::hideSubDialogFrame(const std::string& name, bool& hidden) {
    Procedure here{services_.errors, "frmQuinloftSettings.hideSubDialogFrame"};
    hidden = true;
    if (name == kAppNamePage) appName.validateAppNameFrame();
    for (const auto& page : pages())
        if (page.name == name) return hideFrame(*page.frame);
    auto* const dialog = pipes.find(name);
    if (!dialog) return;
    const auto object = dialog->Object; // its questions process events
    if (dialog->Visited) hidden = here.value([&] { return object->ValidatePage(); });
    if (hidden) here([&] { object->HidePage(); });
}

void frmQuinloftSettings::applyChanges(bool& ok) {
    Procedure here{services_.errors, "frmQuinloftSettings.applyChanges"};
    if (WorkingProject) {
        if (std::exchange(dependencies.DependenciesChanged, false)) dependencies.SaveNewDependencies();
        appName.saveAppNameFrame();
    }
    myDevices.save();
    if (WorkingProject) compiler.save();
    pipes.apply();
    ok = true;
}

void frmQuinloftSettings::saveLastDialog(Procedure& here) {
    if (WorkingProject) here([&] { WorkingProject->SetLastSettingsDialog(LastSettingsDialog); });
}

void frmQuinloftSettings::btnOK_Click() {
    Procedure here{services_.errors, "frmQuinloftSettings.btnOK_Click"};
    bool ok = false;
    applyChanges(ok);
    if (!ok) return;
    saveLastDialog(here);
    pipes.CleanUpPipes();
    here([&] { Unload(); });
}

void frmQuinloftSettings::btnApply_Click() {
    Procedure here{services_.errors, "frmQuinloftSettings.btnApply_Click"};
    bool ok = false;
    applyChanges(ok);
    saveLastDialog(here);
}

void frmQuinloftSettings::btnCancel_Click() {
    Procedure here{services_.errors, "frmQuinloftSettings.btnCancel_Click"};
    pipes.CleanUpPipes();
    here([&] { Unload(); });
}

void frmQuinloftSettings::btnHelp_Click() { services_.help.DisplayHelp(kAddInGuideTopic); }

} // namespace fernwick
