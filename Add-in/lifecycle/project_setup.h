#pragma once
// Sets up the project that becomes active, and closes it for the project manager.
#include "Add-in/build/messages/modCompileErrorManagement.h"
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/commands/modToolbarManagement.h"
#include "Add-in/lifecycle/frmDesignTargetNormal.h"
#include "Add-in/lifecycle/frmProjectManager.h"
#include "Add-in/lifecycle/frmProjectRemoval.h"
#include "Add-in/project/modSaveProject.h"
#include "Add-in/zoom/modZoomManagement.h"

namespace fernwick {

/// The dependencies of the set-up of projects.
struct SetupServices {
    ErrorReport& errors;
    Interaction& user;
    EventLoop& loop;
    AddIn& addIn;
    modDeviceManagement& devices;
    const DeviceServices& deviceServices;
    modProjectHandler& projects;
    modSaveProject& save;
    modCompileErrorManagement& messages;
    frmDesignTargetNormal& chooseTarget;
    frmProjectManager& projectManager;
    frmProjectRemoval& removal;
    CommandItems& items;
    modMenuManagement& menu;
    modToolbarManagement& toolbars;
    modZoomManagement& zoom;
};

class ProjectSetup {
public:
    explicit ProjectSetup(const SetupServices& services) : services_(services) {}

    /// Makes the project the active one: gives it a device if it has none, and updates the menu, the toolbars and the
    /// messages.
    void SetupProject(const basic::Ref<clsQLProject>& project);
    /// Closes the current project and shows the project manager, unless saving fails or is cancelled.
    void StartProjectManager();

private:
    void leaveActiveProject(Procedure& here);
    void chooseDevice(Procedure& here, const basic::Ref<clsQLProject>& project);
    void takeOnlyTarget(Procedure& here, const basic::Ref<clsQLProject>& project, const std::string& key);
    void askForTarget(Procedure& here, const basic::Ref<clsQLProject>& project);
    void prepareForDevice(Procedure& here, const basic::Ref<clsQLProject>& project);
    void switchOn(Procedure& here, const basic::Ref<clsQLProject>& project);
    void switchOff(Procedure& here);
    void closeActiveProject(Procedure& here);
    bool hasDevice(const basic::Ref<clsQLProject>& project);

    SetupServices services_;
};

} // namespace fernwick
