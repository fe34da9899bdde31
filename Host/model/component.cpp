#include "Host/model/component.h"
#include "Host/files/native_path.h"
#include "Host/files/path_lookup.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/loaded_source.h"
#include "Host/model/code/names.h"
#include "Host/model/component_designer.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/module_code.h"
#include "Host/model/project.h"
#include "Host/model/windows/tool_window.h"
#include <fmt/format.h>
#include <unistd.h>

namespace host {
namespace {

/// The companion on disk, in any letter case; "" if there is none.
std::string companionOnDisk(const std::string& path) {
    if (path.empty()) return {};
    const auto found = PathLookup().find(folderOf(path), fileNameOf(companionOf(path)));
    return ::access(found.c_str(), F_OK) == 0 ? found : std::string();
}

/// Error 32813 if another component has this name.
void requireFreeName(Project& project, const std::string& name, const Component& component) {
    const auto other = project.components().named(name);
    if (other && other.get() != &component) throwNameTaken(name);
}

} // namespace

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
    requireFreeName(*project, name, *this);
    source_.name(name);
    dirty_ = true;
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

std::string Component::FileNames(int index) const {
    owner();
    if (index == 1) return origin_.path;
    const auto companion = companionOnDisk(origin_.path);
    if (index != 2 || companion.empty()) throw hostError(basic::kSubscriptOutOfRange);
    return companion;
}

int Component::FileCount() const {
    owner();
    return hasDesigner() && !companionOnDisk(origin_.path).empty() ? 2 : 1;
}

bool Component::IsDirty() const {
    owner();
    return dirty_;
}

void Component::IsDirty(bool dirty) {
    owner();
    dirty_ = dirty;
}

bool Component::Saved() const { return !IsDirty(); }

void Component::SaveAs(const std::string& path) {
    const auto project = owner();
    if (path.empty()) throw hostError(basic::kPathFileAccessError, fmt::format("{}: has no file name", name_));
    const auto target = absolutePath(path);
    const bool same = target == origin_.path;
    if (!same && hasDesigner()) copyCompanion(*project, target);
    const auto stamp =
        project->host()->writeFile(*project, target, source_.bytes(), same ? origin_.stamp : std::nullopt);
    if (!stamp) return;
    origin_.stamp = stamp;
    dirty_ = false;
    if (same) return;
    origin_.path = target;
    project->writeMember(*this);
}

/// Copies the form's resources and changes its references to them.
void Component::copyCompanion(Project& project, const std::string& target) {
    const auto companion = companionOnDisk(resourceOwner());
    if (companion.empty()) return;
    const auto copy = companionOf(target);
    if (!project.host()->writeFile(project, copy, readFile(companion).bytes, std::nullopt)) return;
    source_.renameCompanion(fileNameOf(companion), fileNameOf(copy));
}

void Component::becomeNew() {
    template_ = origin_.path;
    origin_ = {};
    dirty_ = true;
}

void Component::reread() {
    replaceSource(readSource(kindOf(type_).member, origin_.path, owner()->usualCodePage()));
    dirty_ = false;
    raiseReplaced();
}

void Component::restore(std::string bytes, const std::optional<FileStamp>& base) {
    auto loaded = sourceOf(kindOf(type_).member, std::move(bytes), origin_.path, owner()->usualCodePage());
    loaded.stamp = base;
    replaceSource(std::move(loaded));
    dirty_ = true;
    raiseReplaced();
}

/// Objects handed out for the old designer raise errors from now on.
void Component::replaceSource(LoadedSource loaded) {
    const auto project = owner();
    const auto name = loaded.name.empty() ? name_ : loaded.name;
    requireFreeName(*project, name, *this);
    designer_->reset();
    source_ = std::move(loaded.source);
    type_ = loaded.type;
    origin_.stamp = loaded.stamp;
    if (code_) code_->replaced();
    if (name != name_) adoptName(name);
}

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
    if (hasDesigner()) DesignerWindow()->SetFocus();
    host->raise(project->componentsEvents->ItemSelected, self);
    host->raise(project->componentsEvents->ItemActivated, self);
}

vbide::Ref<vbide::CodeModule> Component::CodeModule() {
    owner();
    if (!code_) code_ = std::make_shared<ModuleCode>(weak_from_this());
    return code_;
}

bool Component::hasDesigner() const { return kindOf(type_).hasDesigner; }

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
