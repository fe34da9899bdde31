#include "Host/model/component.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/loaded_source.h"
#include "Host/model/code/names.h"
#include "Host/model/component_designer.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/module_code.h"
#include "Host/model/project.h"
#include "Host/model/windows/tool_window.h"

namespace host {

Component::Component(const std::shared_ptr<Project>& project, LoadedSource loaded, ComponentOrigin origin)
    : project_(project),
      type_(loaded.type),
      name_(std::move(loaded.name)),
      source_(std::move(loaded.source)),
      origin_(std::move(origin)),
      dirty_(origin_.path.empty()),
      designer_(std::make_unique<ComponentDesigner>(*this)) {}

Component::~Component() = default;

std::shared_ptr<Project> Component::owner() const {
    auto project = project_.lock();
    if (!project) throwRemoved();
    return project;
}

std::string Component::Name() const {
    owner();
    return name_;
}

void Component::Name(const std::string& name) {
    const auto project = owner();
    if (name == name_) return;
    if (!isLegalName(name)) throwIllegalName(name);
    project->components().requireFree(name, *this);
    source_.name(name);
    dirty_.edited();
    adoptName(name);
}

void Component::rename(const std::string& name) {
    source_.name(name);
    name_ = name;
}

vbide::vbext_ComponentType Component::Type() const {
    owner();
    return type_;
}

bool Component::IsDirty() const {
    owner();
    return dirty_.isSet(origin_.stamp, [this] { return source_.bytes(); });
}

void Component::IsDirty(bool dirty) {
    owner();
    dirty_.set(dirty);
}

bool Component::Saved() const { return !IsDirty(); }

/// Takes a new name and updates the project's line and settings.
void Component::adoptName(const std::string& name) {
    const auto project = owner();
    const auto oldName = std::exchange(name_, name);
    project->components().renamed(*this, oldName);
    project->writeMember(*this);
    project->followRename(oldName, name);
    project->host()->raise(project->componentsEvents->ItemRenamed, shared_from_this(), oldName);
}

void Component::raiseReplaced() {
    const auto self = shared_from_this();
    const auto project = owner();
    const auto host = project->host();
    host->raise(project->componentsEvents->ItemReloaded, self);
    raiseToPanes(&PaneEvents::codeChanged);
    if (hasDesigner()) raiseToPanes(&PaneEvents::designChanged);
}

void Component::remove() {
    designer_->reset();
    project_.reset();
}

void Component::Activate() {
    const auto project = owner();
    const auto self = shared_from_this();
    const auto host = project->host();
    host->select(self);
    if (hasDesigner()) designer_->bringToFront();
    host->raise(project->componentsEvents->ItemSelected, self);
    host->raise(project->componentsEvents->ItemActivated, self);
}

vbide::Ref<vbide::CodeModule> Component::CodeModule() {
    owner();
    if (!code_) code_ = std::make_shared<ModuleCode>(weak_from_this());
    return code_;
}

bool Component::hasDesigner() const { return kindOf(type_).hasDesigner; }

std::string Component::designerCaption() const {
    std::string project;
    const auto removed = basic::attempt([&] { project = owner()->Name(); });
    if (removed.Number != 0) return name_;
    return project + " - " + name_ + " (" + std::string(kindOf(type_).newName) + ")";
}

void Component::designerShown() {
    const auto project = project_.lock();
    const auto host = project ? project->host() : nullptr;
    const vbide::Ref<vbide::VBComponent> self = shared_from_this();
    if (host && host->SelectedVBComponent() == self) host->raise(project->componentsEvents->ItemActivated, self);
}

vbide::Ref<vbide::Properties> Component::Properties() {
    owner();
    if (!hasDesigner()) throw hostError(basic::kPropertyOrMethodNotSupported);
    return designer_->properties();
}

vbide::Ref<vbide::VBForm> Component::Designer() {
    owner();
    return hasDesigner() ? designer_->form() : nullptr;
}

bool Component::HasOpenDesigner() const {
    owner();
    return designer_->isOpen();
}

vbide::Ref<vbide::Window> Component::DesignerWindow() {
    owner();
    if (!hasDesigner()) throw hostError(basic::kPropertyOrMethodNotSupported);
    return designer_->window();
}

void Component::raiseToPanes(PaneEvent event) {
    const auto project = project_.lock();
    const auto host = project ? project->host() : nullptr;
    if (host) host->raise(host->panes.*event, vbide::Ref<vbide::VBComponent>(shared_from_this()));
}

vbide::Ref<vbide::VBE> Component::VBE() const { return owner()->VBE(); }

vbide::Ref<vbide::VBComponents> Component::Collection() const { return owner()->VBComponents(); }

} // namespace host
