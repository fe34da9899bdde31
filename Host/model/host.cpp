#include "Host/model/host.h"
#include "Host/files/atomic_save.h"
#include "Host/model/addin_list.h"
#include "Host/model/bars/bars.h"
#include "Host/model/bars/host_menus.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/event_sources.h"
#include "Host/model/project.h"
#include "Host/model/projects.h"
#include "Host/model/windows/tool_windows.h"
#include <algorithm>

namespace host {
namespace {

enum WriteResult : int { kWritten = 0, kWriteCancelled = 1, kWriteFailed = 2 };

/// The commands of the built-in menus. Controls may outlive the host.
HostCommands commandsOf(const std::weak_ptr<Host>& link) {
    const auto command = [link](void (*run)(Host&)) {
        return [link, run] {
            if (const auto host = link.lock()) run(*host);
        };
    };
    HostCommands commands;
    commands.newProject = command([](Host& host) { host.projects().addNew(); });
    commands.openProject = command([](Host& host) {
        const auto& ask = host.options().askForProject;
        const auto path = ask ? ask() : std::string();
        if (!path.empty()) host.projects().AddFromFile(path, false);
    });
    commands.saveProject = command([](Host& host) {
        if (const auto active = host.ActiveVBProject()) host.saveProject(active);
    });
    commands.removeProject = command([](Host& host) {
        if (const auto active = host.ActiveVBProject()) host.projects().Remove(active);
    });
    return commands;
}

} // namespace

std::shared_ptr<Host> Host::create(HostOptions options) {
    std::shared_ptr<Host> host(new Host(std::move(options)));
    host->bars_->handlerFailed = [link = host->weak_from_this()](const basic::ErrObject& error) {
        if (const auto alive = link.lock()) alive->handlerFailed(error);
    };
    host->bars_->clipboard = host->options_.clipboard;
    addHostMenus(*host->bars_, commandsOf(host));
    return host;
}

Host::Host(HostOptions options)
    : options_(std::move(options)),
      libraries_(options_.registry),
      events_(std::make_shared<EventSources>(projectsEvents_, fileEvents_)),
      projects_(std::make_shared<Projects>(*this)),
      addIns_(std::make_shared<AddInList>()),
      windows_(std::make_shared<ToolWindows>(options_.classes)),
      bars_(std::make_shared<Bars>()) {}

Host::~Host() { projects_->close(); }

vbide::Ref<vbide::Events> Host::Events() { return events_; }
vbide::Ref<vbide::Addins> Host::Addins() { return addIns_; }
vbide::Ref<vbide::VBProjects> Host::VBProjects() { return projects_; }
vbide::Ref<vbide::Windows> Host::Windows() { return windows_; }
vbide::Ref<office::CommandBars> Host::CommandBars() { return bars_; }
vbide::Ref<vbide::VBProject> Host::ActiveVBProject() const { return active_; }
vbide::Ref<vbide::VBComponent> Host::SelectedVBComponent() const { return selected_; }
std::string Host::TemplatePath() const { return options_.templatePath; }

void Host::ActiveVBProject(const vbide::Ref<vbide::VBProject>& project) {
    if (!projects_->holds(project)) throw hostError(basic::kInvalidProcedureCall);
    activate(project);
}

bool Host::isTemplate(const std::string& path) const {
    const auto isBelow = [&](const std::string& folder) {
        return !folder.empty() && path.starts_with(absolutePath(folder) + "/");
    };
    const auto& others = options_.templateFolders;
    return isBelow(options_.templatePath) || std::any_of(others.begin(), others.end(), isBelow);
}

void Host::projectAdded(const vbide::Ref<vbide::VBProject>& project) {
    active_ = project;
    raise(projectsEvents_->ItemAdded, project);
}

void Host::activate(const vbide::Ref<vbide::VBProject>& project) {
    if (active_ == project || !projects_->holds(project)) return;
    active_ = project;
    raise(projectsEvents_->ItemActivated, project);
}

void Host::projectRemoved(const vbide::Ref<vbide::VBProject>& project) {
    if (active_ == project) active_ = nullptr;
    if (!selected_) return;
    for (const auto& component : project->VBComponents()->items()) componentRemoved(component);
}

void Host::componentRemoved(const vbide::Ref<vbide::VBComponent>& component) {
    if (selected_ == component) selected_ = nullptr;
}

// ---- files ----------------------------------------------------------------------------------------------------------

vbide::Ref<vbide::VBProject> Host::refTo(Project& project) { return project.shared_from_this(); }

const vbide::FileControlEvents& Host::fileEventsOf(Project& project) const { return *project.fileEvents; }

/// The user agrees to replace the present file, not later changes of it: `asRead` becomes its stamp.
bool Host::agreesToReplace(const std::string& path, std::string_view bytes, std::optional<FileStamp>& asRead) const {
    if (!asRead || !options_.mayReplaceChanged) return true;
    const auto now = changedSince(path, *asRead, bytes);
    if (!now) return true;
    if (!options_.mayReplaceChanged(path)) return false;
    asRead = now;
    return true;
}

std::optional<FileStamp> Host::writeFile(Project& project, const std::string& path, std::string_view bytes,
                                         std::optional<FileStamp> asRead) {
    using Events = vbide::FileControlEvents;
    bool cancel = false;
    raiseFile(&Events::RequestWriteFile, project, path, cancel);
    try {
        if (cancel || !agreesToReplace(path, bytes, asRead)) {
            raiseFile(&Events::AfterWriteFile, project, path, int(kWriteCancelled));
            return {};
        }
        const auto stamp = options_.writesFiles ? atomicSave(path, bytes, asRead) : asRead.value_or(FileStamp{});
        raiseFile(&Events::AfterWriteFile, project, path, int(kWritten));
        return stamp;
    } catch (const basic::RuntimeError&) {
        raiseFile(&Events::AfterWriteFile, project, path, int(kWriteFailed));
        throw;
    }
}

void Host::saveProject(const vbide::Ref<vbide::VBProject>& project) {
    for (const auto& component : project->VBComponents()->items())
        if (component->IsDirty() && !component->FileNames(1).empty()) component->SaveAs(component->FileNames(1));
    if (project->IsDirty() && !project->FileName().empty()) project->SaveAs(project->FileName());
}

// ---- add-ins --------------------------------------------------------------------------------------------------------

void Host::listAddIn(const std::string& progId, const std::string& description,
                     std::function<vbide::Ref<vbide::IDTExtensibility>()> create) {
    addIns_->add(std::make_shared<ListedAddIn>(weak_from_this(), progId, description, std::move(create)));
}

void Host::connectAddIn(const std::string& progId, vbide::vbext_ConnectMode mode) {
    const auto addIn = addIns_->find(progId);
    if (!addIn) throw hostError(basic::kSubscriptOutOfRange);
    addIn->connectAs(mode);
}

void Host::startupComplete() {
    for (const auto& addIn : std::vector(addIns_->list())) addIn->startupComplete();
}

void Host::addInsChanged() {
    for (const auto& addIn : std::vector(addIns_->list())) {
        const auto failed = basic::attempt([&] { addIn->addInsChanged(); });
        if (failed.Number != 0) handlerFailed(failed);
    }
}

void Host::close() {
    projects_->removeAll();
    for (const auto& addIn : std::vector(addIns_->list())) addIn->disconnect(vbide::vbext_dm_HostShutdown);
}

void Host::handlerFailed(const basic::ErrObject& error) const {
    if (options_.handlerFailed) options_.handlerFailed(error);
}

} // namespace host
