#include "Host/model/components.h"
#include "Host/files/path_lookup.h"
#include "Host/model/code/new_source.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/project.h"
#include <algorithm>

namespace host {
namespace {

constexpr std::string_view kSubMain = "Sub Main", kNoStartUp = "(None)";

MemberKind kindOfFile(const std::string& path) {
    const auto extension = path.substr(std::min(path.size(), path.rfind('.')));
    constexpr std::pair<std::string_view, MemberKind> kKinds[] = {
        {".frm", MemberKind::Form},        {".bas", MemberKind::Module},       {".cls", MemberKind::Class},
        {".ctl", MemberKind::UserControl}, {".pag", MemberKind::PropertyPage}, {".dob", MemberKind::UserDocument},
        {".dsr", MemberKind::Designer}};
    for (const auto& [ending, kind] : kKinds)
        if (basic::equalNoCase(extension, ending)) return kind;
    throw hostError(kInvalidFileFormat, path + ": is no kind of component");
}

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
    if (index < 1 || index > Count()) throw hostError(basic::kSubscriptOutOfRange);
    return list_[std::size_t(index) - 1];
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

bool Components::take(const std::shared_ptr<Component>& component) {
    if (!byName_.try_emplace(component->Name(), component).second) return false;
    list_.push_back(component);
    return true;
}

void Components::renamed(Component& component, const std::string& oldName) {
    byName_.erase(oldName);
    byName_.try_emplace(component.Name(), component.shared_from_this());
}

std::string Components::freeName(std::string_view stem) const {
    for (int number = 1;; ++number)
        if (auto name = std::string(stem) + std::to_string(number); !named(name)) return name;
}

vbide::Ref<vbide::VBComponent> Components::Add(vbide::vbext_ComponentType type) {
    const auto project = this->project();
    const auto stem = newNameOf(type);
    if (!stem) throw hostError(basic::kInvalidProcedureCall);
    const auto host = project->host();
    const auto name = freeName(*stem);
    const auto component = std::make_shared<Component>(
        project, type, name, SourceFile(newSource(type, name), host->options().codePage), ComponentOrigin{});
    take(component);
    welcomeNew(component);
    return component;
}

/// A new one comes to the front, unless a handler has removed it or put another in its place.
void Components::welcomeNew(const std::shared_ptr<Component>& component) {
    const auto project = this->project();
    const auto host = project->host();
    const auto inFront = host->SelectedVBComponent();
    project->changed();
    if (component->hasDesigner()) component->openDesigner();
    host->tell(project->componentsEvents->ItemAdded, component);
    const bool stands = std::find(list_.begin(), list_.end(), component) != list_.end();
    const auto now = host->SelectedVBComponent();
    if (stands && (!now || now == inFront)) component->Activate();
}

vbide::Ref<vbide::VBComponent> Components::AddFile(const std::string& path) {
    const auto project = this->project();
    const auto host = project->host();
    const auto native = absolutePath(path);
    const auto kind = kindOfFile(native);
    host->tellFile(&vbide::FileControlEvents::BeforeLoadFile, *project, std::vector<std::string>{native});
    const auto component = project->readComponent(kind, native, {});
    if (host->isTemplate(native)) return addTemplate(component);
    if (!take(component)) throwNameTaken(component->Name());
    project->writeMember(*component);
    project->changed();
    host->tellFile(&vbide::FileControlEvents::AfterAddFile, *project, native);
    host->tell(project->componentsEvents->ItemAdded, component);
    return component;
}

vbide::Ref<vbide::VBComponent> Components::addTemplate(const std::shared_ptr<Component>& component) {
    component->becomeNew();
    if (named(component->Name())) component->rename(freeName(withoutNumber(component->Name())));
    take(component);
    welcomeNew(component);
    return component;
}

std::shared_ptr<Component> Components::addSource(vbide::vbext_ComponentType type, const std::string& name,
                                                 std::string bytes) {
    const auto project = this->project();
    auto loaded = project->sourceOf(memberKindOf(type), std::move(bytes), name);
    if (!loaded.name.empty() && named(loaded.name)) throwNameTaken(loaded.name);
    const auto component =
        std::make_shared<Component>(project, loaded.type, loaded.name.empty() ? freeName(name) : loaded.name,
                                    std::move(loaded.source), ComponentOrigin{});
    take(component);
    project->changed();
    project->host()->tell(project->componentsEvents->ItemAdded, component);
    return component;
}

void Components::Remove(const vbide::Ref<vbide::VBComponent>& component) {
    const auto project = this->project();
    const auto own = basic::cast<Component>(component).shared();
    const auto place = std::find(list_.begin(), list_.end(), own);
    if (!own || place == list_.end()) throw hostError(basic::kInvalidProcedureCall);
    const auto host = project->host();
    if (!own->beginRemoval()) return; // a handler of its own event asks
    host->tell(project->componentsEvents->ItemRemoved, component);
    std::erase(list_, own);
    byName_.erase(own->Name());
    project->dropMember(*own);
    project->changed();
    const auto path = own->path();
    host->forget(component);
    own->remove();
    if (!path.empty()) host->tellFile(&vbide::FileControlEvents::AfterRemoveFile, *project, path);
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
