#pragma once
// The host: an IDE without its window. It owns everything; what a front end needs of it stands here.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/clipboard.h"
#include "Add-in/platform/host.h"
#include "Add-in/platform/registry.h"
#include "Basic/code_page.h"
#include "Host/files/text_file.h"
#include "Host/model/errors/load_problem.h"
#include "Host/model/forms/control_class.h"
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

/// What the host is given of its machine. All of it may be left out.
struct HostOptions {
    /// The code page of files that do not tell theirs.
    basic::CodePage codePage = basic::CodePage::windows1252();
    /// The folder above the host's project templates.
    std::string templatePath;
    /// Further folders of templates. What is opened or added from below any of them is new, without a file of its own.
    std::vector<std::string> templateFolders;
    /// Type libraries and control classes are looked up here.
    fernwick::Registry* registry = nullptr;
    /// Makes the documents of tool windows.
    fernwick::Classes* classes = nullptr;
    /// Where buttons take their faces from.
    const fernwick::Clipboard* clipboard = nullptr;
    /// The properties of a control class that is not the language's own, and the class of a ProgID; see DesignerHooks.
    std::function<std::shared_ptr<const ControlClass>(const std::string& className)> controlClasses;
    std::function<std::string(const std::string& progId)> classOfProgId;
    /// The control classes that are installed, for toolboxes.
    std::function<std::vector<std::string>()> controlClassNames;
    /// Told of an error that a handler of an add-in let out; the host itself goes on.
    std::function<void(const basic::ErrObject&)> handlerFailed;
    /// Asked before a save replaces a file that another program changed since it was read; false leaves the file and what
    /// was to be saved as they are. Without it such a save fails with error 75.
    std::function<bool(const std::string& path)> mayReplaceChanged;
    /// Asks the user which project to open; "" for none. Without it the menu's command does nothing.
    std::function<std::string()> askForProject;
};

/// What happens to the code panes and designers of components, for a front end that draws them.
struct PaneEvents {
    /// It is to come to the front.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> shown;
    fernwick::Event<vbide::Ref<vbide::VBComponent>> selectionSet;
    /// Somebody edited the code, perhaps the front end itself.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> codeChanged;
    /// A form's designer is to come to the front.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> designerShown;
    /// A form's designer opened or closed.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> designerOpened;
    /// Somebody edited the text of a form, perhaps the front end itself.
    fernwick::Event<vbide::Ref<vbide::VBComponent>> designChanged;
};

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
    /// What was wrong with the files of the last AddFromFile or AddFromTemplate, a group's other projects too.
    const std::vector<LoadProblem>& loadProblems() const { return loadProblems_; }
    /// Lists an add-in, not connected. `create` makes its object at each connection.
    void listAddIn(const std::string& progId, const std::string& description,
                   std::function<vbide::Ref<vbide::IDTExtensibility>()> create);
    /// Connects a listed add-in as `mode` says. An error of its OnConnection comes out and leaves it disconnected.
    void connectAddIn(const std::string& progId, vbide::vbext_ConnectMode mode);
    /// Tells connected add-ins that the start is complete.
    void startupComplete();
    /// As the user's closing of the host: removes all projects, then disconnects all add-ins.
    void close();
    /// Saves the project's components that have a file and then the project, those that are dirty only.
    void saveProject(const vbide::Ref<vbide::VBProject>& project);
    /// Whether the file (native, absolute) lies below a folder of templates.
    bool isTemplate(const std::string& path) const;
    PaneEvents panes;
    Bars& bars() { return *bars_; }
    ToolWindows& toolWindows() { return *windows_; }

    // ---- for the host's own objects ----
    const HostOptions& options() const { return options_; }
    const TypeLibraries& libraries() const { return libraries_; }
    Projects& projects() { return *projects_; }
    vbide::VBProjectsEvents& projectsEvents() { return *projectsEvents_; }
    vbide::FileControlEvents& fileEvents() { return *fileEvents_; }
    std::vector<LoadProblem>& problems() { return loadProblems_; }

    /// A project that has just been taken in is the active one from the first; its ItemAdded says so for both.
    void welcome(const vbide::Ref<vbide::VBProject>& project);
    /// Makes the project the active one and says so; nothing when it is that already.
    void activate(const vbide::Ref<vbide::VBProject>& project);
    void select(const vbide::Ref<vbide::VBComponent>& component) { selected_ = component; }
    /// The active project and the selected component are never ones that have been removed.
    void forget(const vbide::Ref<vbide::VBProject>& project);
    void forget(const vbide::Ref<vbide::VBComponent>& component);

    /// Raises an event of the host: what a handler lets out is told and goes no further.
    template <class... Args, class... Given>
    void tell(const fernwick::Event<Args...>& event, Given&&... arguments) {
        const auto failed = basic::attempt([&] { event.raise(arguments...); });
        if (failed.Number != 0) handlerFailed(failed);
    }
    /// Raises a file event: at the project's own source, then at that of all projects.
    template <class... Args, class... Given>
    void tellFile(fernwick::Event<Args...> vbide::FileControlEvents::*event, Project& project, Given&&... arguments);

    /// Writes a file of a project, with the events round it. Nothing when a handler cancelled it, or the user does not
    /// want to replace what another program wrote.
    /// Errors as atomicSave, after AfterWriteFile.
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
void Host::tellFile(fernwick::Event<Args...> vbide::FileControlEvents::*event, Project& project, Given&&... arguments) {
    const auto self = refTo(project);
    tell(fileEventsOf(project).*event, self, arguments...);
    tell((*fileEvents_).*event, self, arguments...);
}

} // namespace host
