#pragma once
// Requests to drop a project or a component, carried out after the host's event has returned.
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/platform/event_loop.h"
#include "Add-in/platform/form.h"
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

/// Never shown. Loaded at the connection, so that its timers are there for every later handler.
class frmProjectRemoval : public Form {
public:
    using Project = basic::Ref<vbide::VBProject>;

    frmProjectRemoval(Interaction& user, EventLoop& loop, AddIn& addIn, modProjectHandler& projects,
                      CommandItems& items, modMenuManagement& menu, ErrorReport& errors)
        : Form(user), loop_(loop), addIn_(addIn), projects_(projects), items_(items), menu_(menu), errors_(errors) {}
    const char* typeName() const override { return "frmProjectRemoval"; }

    /// Queues the project's removal. With `replaceIt`, `newProject` is opened in its place; an empty name opens none. A
    /// project that has gone by now needs no removal, and what takes another's place stays remembered.
    void RemoveProject(const Project& project, bool replaceIt, const std::string& newProject);
    /// Queues the project. It is emptied with `componentsOnly`, else `path` is opened in place of all that is open.
    void LoadExclusiveProject(const Project& project, const std::string& path, bool componentsOnly);
    /// Removes the component once both are known: an argument that is Nothing keeps what an earlier call gave.
    void RemoveComponent(const Project& project, const basic::Ref<vbide::VBComponent>& component);

protected:
    void Form_Unload() override;

private:
    static constexpr int kNextTurn = 1;

    void Timer1_Timer();
    void Timer2_Timer();
    bool isOpen(const Project& project) const;
    void serve(Procedure& here, const Project& project);
    void replace(Procedure& here, const Project& project, const std::string& path);
    void activate(Procedure& here, const Project& project);
    void removeActive(Procedure& here);
    void openFile(Procedure& here, const std::string& path, bool exclusive);

    EventLoop& loop_;
    AddIn& addIn_;
    modProjectHandler& projects_;
    CommandItems& items_;
    modMenuManagement& menu_;
    ErrorReport& errors_;

    std::vector<Project> removalList_;
    std::string projectToOpen_;
    std::string projectToLoad_;
    bool componentsOnly_ = false;
    Project componentsProject_;
    basic::Ref<vbide::VBComponent> componentToRemove_;
    Timer Timer1{loop_, kNextTurn, this, &frmProjectRemoval::Timer1_Timer};
    Timer Timer2{loop_, kNextTurn, this, &frmProjectRemoval::Timer2_Timer};
};

} // namespace fernwick
