#pragma once
// The host: an IDE without its window, the root of the object model.
#include "Add-in/platform/host.h"
#include "Host/files/text_file.h"
#include "Host/model/errors/load_problem.h"
#include "Host/model/host_options.h"
#include "Host/model/pane_events.h"
#include "Host/model/references/type_libraries.h"
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

class AddInList;
class Bars;
class EventSources;
class Project;
class Projects;
class ToolWindows;

class Host final : public vbide::VBE, public std::enable_shared_from_this<Host> {
public:
    static std::shared_ptr<Host> create(HostOptions options = {});
    ~Host() override;

    vbide::Ref<vbide::Events> Events() override;
    vbide::Ref<vbide::Addins> Addins() override;
    vbide::Ref<vbide::VBProjects> VBProjects() override;
    vbide::Ref<vbide::Windows> Windows() override;
    vbide::Ref<office::CommandBars> CommandBars() override;
    vbide::Ref<vbide::VBProject> ActiveVBProject() const override;
    void ActiveVBProject(const vbide::Ref<vbide::VBProject>& project) override;
    vbide::Ref<vbide::VBComponent> SelectedVBComponent() const override;
    std::string TemplatePath() const override;

    // ---- for front ends ----
    /// The problems of the last AddFromFile or AddFromTemplate, with those of all projects of a group.
    const std::vector<LoadProblem>& loadProblems() const { return loadProblems_; }
    /// Lists an add-in without connecting it. `create` returns its object, for each connection.
    void listAddIn(const std::string& progId, const std::string& description,
                   std::function<vbide::Ref<vbide::IDTExtensibility>()> create);
    /// Connects a listed add-in. An error thrown by its OnConnection is passed on and leaves it disconnected.
    void connectAddIn(const std::string& progId, vbide::vbext_ConnectMode mode);
    /// Notifies connected add-ins that the start is complete.
    void startupComplete();
    /// Closes the host as the user would: removes all projects, then disconnects all add-ins.
    void close();
    /// Saves the dirty components that have a file, then the project if it is dirty.
    void saveProject(const vbide::Ref<vbide::VBProject>& project);
    /// True for a file (native, absolute path) below a folder of templates.
    bool isTemplate(const std::string& path) const;
    PaneEvents panes;
    /// The text of a project's own file was edited, or components without a file were added or removed.
    fernwick::Event<vbide::Ref<vbide::VBProject>> projectEdited;
    Bars& bars() { return *bars_; }
    ToolWindows& toolWindows() { return *windows_; }

    // ---- for the host's own objects ----
    const HostOptions& options() const { return options_; }
    const TypeLibraries& libraries() const { return libraries_; }
    Projects& projects() { return *projects_; }
    vbide::VBProjectsEvents& projectsEvents() { return *projectsEvents_; }
    vbide::FileControlEvents& fileEvents() { return *fileEvents_; }
    std::vector<LoadProblem>& problems() { return loadProblems_; }

    /// Makes an added project the active one, then raises its ItemAdded.
    void projectAdded(const vbide::Ref<vbide::VBProject>& project);
    /// Makes the project the active one and raises ItemActivated. Does nothing if it is already active.
    void activate(const vbide::Ref<vbide::VBProject>& project);
    void select(const vbide::Ref<vbide::VBComponent>& component) { selected_ = component; }
    /// Notifies the connected add-ins that one was connected or disconnected.
    void addInsChanged();
    /// Resets the active project and the selected component if they were removed.
    void projectRemoved(const vbide::Ref<vbide::VBProject>& project);
    void componentRemoved(const vbide::Ref<vbide::VBComponent>& component);

    /// Raises an event. Errors thrown by handlers are passed to HostOptions::handlerFailed.
    template <class... Args, class... Given>
    void raise(const fernwick::Event<Args...>& event, Given&&... arguments) {
        const auto failed = basic::attempt([&] { event.raise(arguments...); });
        if (failed.Number != 0) handlerFailed(failed);
    }
    /// Raises a file event at the source of the project, then at that of all projects.
    template <class... Args, class... Given>
    void raiseFile(fernwick::Event<Args...> vbide::FileControlEvents::*event, Project& project, Given&&... arguments);

    /// Writes a file of a project and raises the events before and after. Returns nothing if a handler cancels it or
    /// the user keeps the changes of another program. Errors as atomicSave, after AfterWriteFile.
    std::optional<FileStamp> writeFile(Project& project, const std::string& path, std::string_view bytes,
                                       std::optional<FileStamp> asRead);

private:
    explicit Host(HostOptions options);
    void handlerFailed(const basic::ErrObject& error) const;
    bool agreesToReplace(const std::string& path, std::string_view bytes, std::optional<FileStamp>& asRead) const;
    const vbide::FileControlEvents& fileEventsOf(Project& project) const;
    static vbide::Ref<vbide::VBProject> refTo(Project& project);

    HostOptions options_;
    TypeLibraries libraries_;
    vbide::Ref<vbide::VBProjectsEvents> projectsEvents_ = basic::make<vbide::VBProjectsEvents>();
    vbide::Ref<vbide::FileControlEvents> fileEvents_ = basic::make<vbide::FileControlEvents>();
    std::shared_ptr<EventSources> events_;
    std::shared_ptr<Projects> projects_;
    std::shared_ptr<AddInList> addIns_;
    std::shared_ptr<ToolWindows> windows_;
    std::shared_ptr<Bars> bars_;
    vbide::Ref<vbide::VBProject> active_;
    vbide::Ref<vbide::VBComponent> selected_;
    std::vector<LoadProblem> loadProblems_;
};

template <class... Args, class... Given>
void Host::raiseFile(fernwick::Event<Args...> vbide::FileControlEvents::*event, Project& project,
                     Given&&... arguments) {
    const auto self = refTo(project);
    raise(fileEventsOf(project).*event, self, arguments...);
    raise((*fileEvents_).*event, self, arguments...);
}

} // namespace host
