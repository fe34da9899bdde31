#include "Host/model/components.h"
#include "Basic/case_folding.h"
#include "Host/files/path_lookup.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/loaded_source.h"
#include "Host/model/code/names.h"
#include "Host/model/code/new_source.h"
#include "Host/model/component_designer.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include <algorithm>
#include <utility>

namespace host {
namespace {

constexpr std::string_view kSubMain = "Sub Main", kNoStartUp = "(None)";

std::string_view withoutNumber(std::string_view name) {
    return name.substr(0, name.find_last_not_of("0123456789") + 1);
}

} // namespace

std::shared_ptr<Project> Components::project() const {
    if (!project_) throwRemoved();
    return project_->shared_from_this();
}

int Components::Count() const {
    project();
    return int(list_.size());
}

vbide::Ref<vbide::VBComponent> Components::Item(int index) const {
    project();
    return itemAt(list_, index);
}

vbide::Ref<vbide::VBComponent> Components::Item(const std::string& name) const {
    project();
    if (const auto found = named(name)) return found;
    throw hostError(basic::kSubscriptOutOfRange);
}

std::vector<vbide::Ref<vbide::VBComponent>> Components::items() const {
    project();
    return {list_.begin(), list_.end()};
}

std::shared_ptr<Component> Components::named(const std::string& name) const {
    const auto found = byName_.find(std::string_view(name));
    return found == byName_.end() ? nullptr : found->second;
}

void Components::requireFree(const std::string& name, const Component& component) const {
    const auto other = named(name);
    if (other && other.get() != &component) throwNameTaken(name);
}

bool Components::insert(const std::shared_ptr<Component>& component) {
    if (!byName_.try_emplace(component->Name(), component).second) return false;
    list_.push_back(component);
    return true;
}

void Components::renamed(Component& component, const std::string& oldName) {
    byName_.erase(oldName);
    byName_.try_emplace(component.Name(), component.shared_from_this());
}

std::string Components::freeName(std::string_view stem) const {
    return firstFreeName(stem, [this](const std::string& name) { return named(name) != nullptr; });
}

vbide::Ref<vbide::VBComponent> Components::Add(vbide::vbext_ComponentType type) {
    const auto project = this->project();
    const auto stem = newNameOf(type);
    if (stem.empty()) throw hostError(basic::kInvalidProcedureCall);
    const auto name = freeName(stem);
    LoadedSource source{SourceFile(newSource(type, name), project->codePage().page), type, name, {}};
    return addNew(std::make_shared<Component>(project, std::move(source), ComponentOrigin{}));
}

/// Adds a component without a file and activates it, unless a handler removes it or activates another one.
vbide::Ref<vbide::VBComponent> Components::addNew(const std::shared_ptr<Component>& component) {
    insert(component);
    const auto project = this->project();
    const auto host = project->host();
    const auto inFront = host->SelectedVBComponent();
    project->changed();
    if (component->hasDesigner()) component->DesignerWindow()->Visible(true);
    const auto outer = std::exchange(announced_, component);
    host->raise(project->componentsEvents->ItemAdded, component);
    announced_ = outer;
    const bool present = std::find(list_.begin(), list_.end(), component) != list_.end();
    const auto now = host->SelectedVBComponent();
    if (present && (!now || now == inFront)) component->Activate();
    return component;
}

vbide::Ref<vbide::VBComponent> Components::AddFile(const std::string& path) {
    const auto project = this->project();
    const auto host = project->host();
    const auto native = absolutePath(path);
    const auto kind = memberKindOfFile(native);
    if (!kind) throw hostError(kInvalidFileFormat, native + ": is not a component file");
    host->raiseFile(&vbide::FileControlEvents::BeforeLoadFile, *project, std::vector<std::string>{native});
    const auto component = project->readComponent(*kind, native, {});
    if (host->isTemplate(native)) return addTemplate(component);
    if (!insert(component)) throwNameTaken(component->Name());
    project->writeMember(*component);
    project->changed();
    host->raiseFile(&vbide::FileControlEvents::AfterAddFile, *project, native);
    host->raise(project->componentsEvents->ItemAdded, component);
    return component;
}

vbide::Ref<vbide::VBComponent> Components::addTemplate(const std::shared_ptr<Component>& component) {
    component->becomeNew();
    takeNameOfAnnounced(*component);
    if (named(component->Name())) component->rename(freeName(withoutNumber(component->Name())));
    return addNew(component);
}

/// An add-in replaces a new component by a template from within its event. The template gets its name, such as Class1.
void Components::takeNameOfAnnounced(Component& component) {
    if (!announced_ || announced_->Type() != component.Type()) return;
    const auto name = announced_->Name();
    if (named(name) != announced_ || !basic::equalNoCase(withoutNumber(name), withoutNumber(component.Name()))) return;
    announced_->rename(freeName(withoutNumber(name)));
    renamed(*announced_, name);
    component.rename(name);
}

std::shared_ptr<Component> Components::addSource(vbide::vbext_ComponentType type, const std::string& name,
                                                 std::string bytes, const UnsavedRecords& records) {
    const auto project = this->project();
    auto loaded = sourceOf(kindOf(type).member, std::move(bytes), name, project->codePage().page);
    if (!loaded.name.empty() && named(loaded.name)) throwNameTaken(loaded.name);
    if (loaded.name.empty()) loaded.name = freeName(name);
    const auto component = std::make_shared<Component>(project, std::move(loaded), ComponentOrigin{});
    component->designer().resources().restore(records);
    insert(component);
    project->changed();
    component->raiseToPanes(&PaneEvents::codeChanged);
    return component;
}

void Components::Remove(const vbide::Ref<vbide::VBComponent>& component) {
    const auto project = this->project();
    const auto own = basic::cast<Component>(component).shared();
    const auto place = std::find(list_.begin(), list_.end(), own);
    if (!own || place == list_.end()) throw hostError(basic::kInvalidProcedureCall);
    const auto host = project->host();
    if (!own->beginRemoval()) return; // requested by a handler of its own event
    host->raise(project->componentsEvents->ItemRemoved, component);
    std::erase(list_, own);
    byName_.erase(own->Name());
    project->dropMember(*own);
    project->changed();
    const auto path = own->path();
    host->componentRemoved(component);
    own->remove();
    if (!path.empty()) host->raiseFile(&vbide::FileControlEvents::AfterRemoveFile, *project, path);
}

vbide::StartUp Components::StartUpObject() const {
    const auto name = project()->file().setting("Startup").value_or("");
    if (basic::equalNoCase(name, kSubMain)) return {true, nullptr};
    if (name.empty() || basic::equalNoCase(name, kNoStartUp)) return {};
    return {false, named(name)};
}

void Components::StartUpObject(const vbide::StartUp& startUp) {
    const auto project = this->project();
    auto name = std::string(startUp.isSubMain ? kSubMain : kNoStartUp);
    if (startUp.component) name = startUp.component->Name();
    project->file().setSetting("Startup", name);
    project->changed();
}

void Components::close() {
    project_ = nullptr;
    for (const auto& component : list_) component->remove();
    list_.clear();
    byName_.clear();
}

} // namespace host
