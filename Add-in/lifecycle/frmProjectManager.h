#pragma once
// The window from which the user opens recent, existing, sample and new projects.
#include "Add-in/commands/modSamplesManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/lifecycle/modRecentProjectManagment.h"
#include "Add-in/platform/controls.h"
#include "Add-in/platform/event_loop.h"
#include "Add-in/platform/grid.h"
#include "Add-in/platform/tab_strip.h"
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

/// The dependencies of the project manager.
struct ManagerServices {
    ErrorReport& errors;
    Interaction& user;
    EventLoop& loop;
    const FileSystemObject& files;
    AddIn& addIn;
    modAddinPrefsManagement& prefs;
    modSamplesManagement& samples;
    modProjectHandler& projects;
    modRecentProjectManagment& recent;
};

class frmProjectManager final : public Form {
public:
    explicit frmProjectManager(const ManagerServices& services);
    const char* typeName() const override { return "frmProjectManager"; }

    /// Shows the form as soon as the host's last project has closed. Does nothing at the command line.
    void ShowOnDelay();
    /// Ends the wait of ShowOnDelay, and the form if it is shown.
    void dismiss();

    TabStrip tbsFiles{this, "tbsFiles", &frmProjectManager::tbsFiles_Click};
    Grid grdRecentProjects{this, "grdRecentProjects", &frmProjectManager::grdRecentProjects_Click,
                           &frmProjectManager::grdRecentProjects_DblClick};
    CommandButton btnOpenRecent{this, "btnOpenRecent", "&Open", &frmProjectManager::btnOpenRecent_Click};
    CommandButton btnNewProject{this, "btnNewProject", "&New Project", &frmProjectManager::btnNewProject_Click};
    CommandButton btnOpenExisiting{this, "btnOpenExisiting", "&Existing Project...", // sic
                                   &frmProjectManager::btnOpenExisiting_Click};
    CommandButton btnCancel{this, "btnCancel", "Cancel", &frmProjectManager::btnCancel_Click};
    PictureBox Picture1{this, "Picture1", "projects"};

    /// "Recent" or "Samples": the list in the grid.
    std::string ListName;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void Timer1_Timer();
    void tbsFiles_Click();
    void grdRecentProjects_Click();
    void grdRecentProjects_DblClick();
    void btnOpenRecent_Click();
    void btnNewProject_Click();
    void btnOpenExisiting_Click();
    void btnCancel_Click() { Unload(); }
    void beginList(const char* name, const char* headings);
    void fillRecent();
    void fillSamples();
    void openSelected(Procedure& here);
    std::string askForProject(Procedure& here);
    void box(Procedure& here, const char* text, const char* title);

    ManagerServices services_;
    modRecentProjectManagment::RecentList recentList_;
    Timer Timer1;
};

} // namespace fernwick
