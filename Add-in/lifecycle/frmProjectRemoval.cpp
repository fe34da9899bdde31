#include "Add-in/lifecycle/frmProjectRemoval.h"
#include <algorithm>

namespace fernwick {

void frmProjectRemoval::RemoveProject(const Project& project, bool replaceIt, const std::string& newProject) {
    Procedure here{errors_, "frmProjectRemoval.RemoveProject"};
    if (!here.test([&] { return isOpen(project); })) return;
    removalList_.push_back(project);
    if (replaceIt) projectToOpen_ = newProject;
    here([&] { Timer1.Enabled(true); });
}

void frmProjectRemoval::LoadExclusiveProject(const Project& project, const std::string& path, bool componentsOnly) {
    Procedure here{errors_, "frmProjectRemoval.LoadExclusiveProject"};
    componentsOnly_ = componentsOnly;
    removalList_.push_back(project);
    projectToLoad_ = path;
    here([&] { Timer1.Enabled(true); });
}

void frmProjectRemoval::RemoveComponent(const Project& project, const basic::Ref<vbide::VBComponent>& component) {
    Procedure here{errors_, "frmProjectRemoval.RemoveComponent"};
    if (project) componentsProject_ = project;
    if (component) componentToRemove_ = component;
    if (componentsProject_ && componentToRemove_) here([&] { Timer2.Enabled(true); });
}

/// Opening and closing raise events whose handlers may make more requests; those are served in the same tick.
void frmProjectRemoval::Timer1_Timer() {
    Procedure here{errors_, "frmProjectRemoval.Timer1_Timer"};
    for (std::size_t i = 0; i < removalList_.size(); ++i) {
        const Project project = removalList_[i];
        serve(here, project);
    }
    discardRequests();
    here([&] { Timer1.Enabled(false); });
    here([&] { ReplacementsEnded.raise(); });
}

/// A path or flag of a request that could not be served must not apply to a later one.
void frmProjectRemoval::discardRequests() {
    removalList_.clear();
    projectToOpen_.clear();
    projectToLoad_.clear();
    componentsOnly_ = false;
}

bool frmProjectRemoval::isOpen(const Project& project) const {
    const auto open = addIn_.gVBInstance->VBProjects()->items();
    return std::find(open.begin(), open.end(), project) != open.end();
}

void frmProjectRemoval::serve(Procedure& here, const Project& project) {
    if (!here.test([&] { return isOpen(project); })) return;
    const auto qlProject = projects_.GetQLProject(project);
    if (!qlProject || !qlProject->IsQuinloftProject()) return;
    const bool oldFormat = qlProject->HasOldFormat();

    // the host marks every new project as changed, and would ask about it
    if (qlProject->IsStartUpProject()) here([&] { project->IsDirty(false); });
    if (projectToOpen_.empty()) {
        activate(here, project);
        if (here.test([&] { return bool(addIn_.gVBInstance->ActiveVBProject()); })) removeActive(here);
    }
    if (oldFormat) {
        const auto importer = here.value([&] { return menu_.FindConverterMenuItem(); });
        if (importer) here([&] { importer->Execute(); });
    } else if (std::exchange(componentsOnly_, false)) {
        projects_.RemoveProjectComponents(qlProject);
    } else if (!projectToOpen_.empty()) {
        replace(here, project, std::exchange(projectToOpen_, {})); // requests made while opening keep their own path
    } else if (!projectToLoad_.empty()) {
        openFile(here, std::exchange(projectToLoad_, {}), true);
    }
}

/// If other projects are open, the new one is opened before the old one is removed; a single project is removed first.
void frmProjectRemoval::replace(Procedure& here, const Project& project, const std::string& path) {
    const bool onlyOne = here.test([&] { return addIn_.gVBInstance->VBProjects()->Count() < 2; });
    bool opened = onlyOne || openFile(here, path, false);
    here([&] { project->IsDirty(false); });
    activate(here, project);
    removeActive(here);
    here([&] { loop_.DoEvents(); });
    if (onlyOne) opened = openFile(here, path, true);
    if (!opened) here([&] { ReplacementsEnded.raise(); });
}

void frmProjectRemoval::activate(Procedure& here, const Project& project) {
    here([&] { addIn_.gVBInstance->ActiveVBProject(project); });
    here([&] { loop_.DoEvents(); });
}

void frmProjectRemoval::removeActive(Procedure& here) {
    here([&] { items_.gFileFourthItem->Execute(); });
}

bool frmProjectRemoval::openFile(Procedure& here, const std::string& path, bool exclusive) {
    return here([&] { addIn_.gVBInstance->VBProjects()->AddFromFile(path, exclusive); });
}

/// The request is forgotten first, because the removal raises an event in which another may be made.
void frmProjectRemoval::Timer2_Timer() {
    Procedure here{errors_, "frmProjectRemoval.Timer2_Timer"};
    const auto project = std::exchange(componentsProject_, nullptr);
    const auto component = std::exchange(componentToRemove_, nullptr);
    here([&] { Timer2.Enabled(false); });
    if (project && component && here.value([&] { return holds(project, component); }))
        here([&] { project->VBComponents()->Remove(component); });
}

/// The component may have been removed, or its project closed, since the request.
bool frmProjectRemoval::holds(const Project& project, const basic::Ref<vbide::VBComponent>& component) const {
    if (!isOpen(project)) return false;
    const auto all = project->VBComponents()->items();
    return std::find(all.begin(), all.end(), component) != all.end();
}

void frmProjectRemoval::Form_Unload() {
    Timer1.Enabled(false);
    Timer2.Enabled(false);
    discardRequests();
    componentsProject_ = nullptr;
    componentToRemove_ = nullptr;
}

} // namespace fernwick
