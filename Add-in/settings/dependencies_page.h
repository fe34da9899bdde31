#pragma once
// The page "Dependencies": the files that the user adds to a project, and those that the last compile found.
#include "Add-in/platform/controls.h"
#include "Add-in/platform/frame.h"
#include "Add-in/platform/list_view.h"
#include "Add-in/settings/settings_services.h"

namespace fernwick {

class DependenciesPage {
public:
    DependenciesPage(Form* form, const SettingsServices& services, const basic::Ref<clsQLProject>& project);

    Frame fraDependencies;
    Label lblDependencies, lblAutomaticDependencies;
    ListView tvwDependencies, lvwAutomaticDependencies;
    CommandButton btnAdd, btnDelete, btnScanforDependencies;
    ProgressBar prgDependencyScan;
    StatusBar stsDependencyScan;

    /// The working copy of the project's list.
    tResourceList Dependencies;
    bool DependenciesChanged = false;

    /// Reads and shows the project's lists.
    void setUp();
    void btnScanforDependencies_Click();
    void SaveNewDependencies();

private:
    using VBProject = basic::Ref<vbide::VBProject>;

    void DisplayDependencies(const VBProject& project);
    void DisplayAutomaticDependencies();
    ListView::Item automaticRow(const std::string& name, const std::string& path) const;
    void btnAdd_Click();
    void add(Procedure& here, const tResourceList& chosen);
    bool isSaved(Procedure& here);
    void filesDropped(const std::vector<std::string>& paths);
    void btnDelete_Click();
    VBProject project() const { return project_->VBProject(); }

    const SettingsServices& services_;
    /// The dialog's.
    const basic::Ref<clsQLProject>& project_;
    std::vector<Subscription> events_;
};

} // namespace fernwick
