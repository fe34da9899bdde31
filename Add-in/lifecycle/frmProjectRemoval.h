#pragma once
// Requests to remove a project or a component, served after the host's event has returned.
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/core/AddIn.h"
#include "Add-in/platform/event_loop.h"
#include "Add-in/platform/form.h"
#include "Add-in/project/modProjectHandler.h"

namespace fernwick {

/// Never shown. It is loaded at the connection so that its timers exist for all later handlers.
class frmProjectRemoval : public Form {
public:
    using Project = basic::Ref<vbide::VBProject>;

    frmProjectRemoval(Interaction& user, EventLoop& loop, AddIn& addIn, modProjectHandler& projects,
                      CommandItems& items, modMenuManagement& menu, ErrorReport& errors)
        : Form(user), loop_(loop), addIn_(addIn), projects_(projects), items_(items), menu_(menu), errors_(errors) {}
    const char* typeName() const override { return "frmProjectRemoval"; }

    /// Queues the project's removal. With `replaceIt`, `newProject` is opened in its place, or none if it is empty. A
    /// request for a project that is no longer open is ignored and does not change the pending replacement.
    void RemoveProject(const Project& project, bool replaceIt, const std::string& newProject);
    /// Queues the project: with `componentsOnly` to be emptied, otherwise to be replaced, with all other open projects,
    /// by `path`.
    void LoadExclusiveProject(const Project& project, const std::string& path, bool componentsOnly);
    /// Removes the component once both arguments are known: Nothing keeps the value of an earlier call.
    void RemoveComponent(const Project& project, const basic::Ref<vbide::VBComponent>& component);

    /// Raised when a replacement could not be opened, and when all requests have been served: from then on no project is
    /// a replacement.
    Event<> ReplacementsEnded;

protected:
    void Form_Unload() override;

private:
    static constexpr int kNextTurn = 1;

    void Timer1_Timer();
    void Timer2_Timer();
    void discardRequests();
    bool isOpen(const Project& project) const;
    bool holds(const Project& project, const basic::Ref<vbide::VBComponent>& component) const;
    void serve(Procedure& here, const Project& project);
    void replace(Procedure& here, const Project& project, const std::string& path);
    void activate(Procedure& here, const Project& project);
    void removeActive(Procedure& here);
    bool openFile(Procedure& here, const std::string& path, bool exclusive);

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
