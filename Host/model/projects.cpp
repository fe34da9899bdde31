#include "Host/model/projects.h"
#include "Basic/case_folding.h"
#include "Host/files/group_file.h"
#include "Host/files/native_path.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_code_page.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/names.h"
#include "Host/model/code/new_source.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/openable_file.h"
#include "Host/model/project.h"
#include <algorithm>
#include <fmt/format.h>

namespace host {

std::shared_ptr<Host> Projects::host() const {
    if (!host_) throwRemoved();
    return host_->shared_from_this();
}

int Projects::Count() const { return int(list_.size()); }

vbide::Ref<vbide::VBProject> Projects::Item(int index) const { return itemAt(list_, index); }

std::vector<vbide::Ref<vbide::VBProject>> Projects::items() const { return {list_.begin(), list_.end()}; }

bool Projects::holds(const vbide::Ref<vbide::VBProject>& project) const {
    return std::any_of(list_.begin(), list_.end(),
                       [&](const auto& p) { return vbide::Ref<vbide::VBProject>(p) == project; });
}

std::string Projects::GroupOf(const vbide::Ref<vbide::VBProject>& project) const {
    const auto own = basic::cast<Project>(project).shared();
    return own ? own->group : std::string();
}

// ---- opening --------------------------------------------------------------------------------------------------------

vbide::Ref<vbide::VBProject> Projects::AddFromFile(const std::string& path, bool exclusive) {
    const auto host = this->host();
    const auto native = absolutePath(path);
    if (host->isTemplate(native)) return AddFromTemplate(native, exclusive);
    if (exclusive && !makeRoomFor(native)) return nullptr;
    host->problems().clear();
    if (memberKindOfFile(native)) return openComponent(native);
    const auto bytes = readFile(native).bytes;
    if (GroupFile::looksLikeGroup(bytes)) return openGroup(native, bytes);
    const auto project = open(native);
    host->activate(project);
    return project;
}

/// Closes all projects. False if the user keeps them.
bool Projects::makeRoomFor(const std::string& path) {
    const auto& options = host()->options();
    requireOpenable(path, options.codePage); // first, as it may fail
    if (!list_.empty() && options.mayReplaceProjects && !options.mayReplaceProjects()) return false;
    removeAll();
    return true;
}

/// Opens a single component in a new project.
vbide::Ref<vbide::VBProject> Projects::openComponent(const std::string& path) {
    JournalEntry project;
    project.bytes = newProjectText(freeName());
    return addRestored(project, [&](Project& added) { added.components().AddFile(path); });
}

vbide::Ref<vbide::VBProject> Projects::openGroup(const std::string& path, const std::string& bytes) {
    const auto host = this->host();
    const auto folder = folderOf(path);
    const auto page = codePageOfProject(bytes, folder, host->options().codePage).page;
    const GroupFile group(bytes, basic::codePageOfFile(bytes, page));
    PathLookup lookup(page);
    std::shared_ptr<Project> startUp;
    openingGroup_ = path;
    for (const auto& entry : group.entries()) {
        const auto failed = basic::attempt([&] {
            const auto project = open(lookup.find(folder, entry.path));
            if (!startUp || entry.startUp) startUp = project;
        });
        if (failed.Number != 0) host->problems().push_back({path, entry.line, failed.Description});
    }
    openingGroup_.clear();
    if (!startUp) throw hostError(kInvalidFileFormat, fmt::format("{}: none of its projects can be opened", path));
    host->activate(startUp);
    return startUp;
}

std::shared_ptr<Project> Projects::open(const std::string& path) {
    requireNotOpen(path);
    auto project = beginLoading(path);
    project->group = openingGroup_;
    project->load();
    add(project);
    return project;
}

void Projects::requireNotOpen(const std::string& path) const {
    for (const auto& project : list_)
        if (project->FileName() == path)
            throw hostError(basic::kFileAlreadyOpen, fmt::format("{}: is already open", path));
}

/// Creates the object for a project whose file is about to be read.
std::shared_ptr<Project> Projects::beginLoading(const std::string& path) {
    const auto host = this->host();
    auto project = std::make_shared<Project>(host, path);
    host->raiseFile(&vbide::FileControlEvents::BeforeLoadFile, *project, std::vector<std::string>{path});
    return project;
}

vbide::Ref<vbide::VBProject> Projects::AddFromTemplate(const std::string& path, bool exclusive) {
    const auto host = this->host();
    const auto native = absolutePath(path);
    if (exclusive && !makeRoomFor(native)) return nullptr;
    host->problems().clear();
    const auto project = beginLoading(native);
    project->load();
    if (isNameTaken(project->Name())) project->file().setSetting("Name", freeName());
    // Handlers see the path of the template; afterwards the project has no file.
    add(project);
    host->activate(project);
    if (holds(project)) project->becomeNew();
    return project;
}

vbide::Ref<vbide::VBProject> Projects::addNew() {
    const auto host = this->host();
    const auto project = std::make_shared<Project>(host, std::string());
    project->loadText(newProjectText(freeName()));
    add(project);
    host->activate(project);
    if (holds(project)) project->VBComponents()->Add(vbide::vbext_ct_VBForm);
    return project;
}

vbide::Ref<vbide::VBProject> Projects::addRestored(const JournalEntry& entry,
                                                   const std::function<void(Project&)>& fill) {
    const auto host = this->host();
    const bool wasSaved = !entry.file.empty();
    if (wasSaved) requireNotOpen(entry.file);
    host->problems().clear();
    const auto project = wasSaved ? beginLoading(entry.file) : std::make_shared<Project>(host, std::string());
    project->loadText(entry.bytes, entry.base);
    if (!wasSaved && isNameTaken(project->Name())) project->file().setSetting("Name", freeName());
    fill(*project);
    add(project);
    host->activate(project);
    return project;
}

std::string Projects::freeName() const {
    return firstFreeName("Project", [this](const std::string& name) { return isNameTaken(name); });
}

bool Projects::isNameTaken(const std::string& name) const {
    return std::any_of(list_.begin(), list_.end(), [&](const auto& p) { return basic::equalNoCase(p->Name(), name); });
}

void Projects::add(const std::shared_ptr<Project>& project) {
    const auto host = this->host();
    list_.push_back(project);
    auto& problems = host->problems();
    problems.insert(problems.end(), project->loadProblems().begin(), project->loadProblems().end());
    host->projectAdded(project);
}

// ---- closing --------------------------------------------------------------------------------------------------------

void Projects::Remove(const vbide::Ref<vbide::VBProject>& project) {
    const auto host = this->host();
    const auto own = basic::cast<Project>(project).shared();
    if (!own || !holds(project)) throw hostError(basic::kInvalidProcedureCall);
    if (!own->beginRemoval()) return; // requested by a handler of its own event
    host->raise(host->projectsEvents().ItemRemoved, project);
    std::erase(list_, own);
    const auto path = own->FileName();
    if (!path.empty()) host->raiseFile(&vbide::FileControlEvents::AfterCloseFile, *own, path);
    host->projectRemoved(project);
    own->close();
    if (!host->ActiveVBProject() && !list_.empty()) host->activate(list_.back()); // the newest one
}

/// Removes the active project last, so that no other project is activated in between.
void Projects::removeAll() {
    const auto active = host()->ActiveVBProject();
    for (const auto& project : items())
        if (project != active && holds(project)) Remove(project);
    if (active && holds(active)) Remove(active);
}

} // namespace host
