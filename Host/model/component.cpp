#include "Host/model/component.h"
#include "Basic/case_folding.h"
#include "Host/files/atomic_save.h"
#include "Host/files/path_lookup.h"
#include "Host/model/windows/tool_window.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/forms/form_designer.h"
#include "Host/model/host.h"
#include "Host/model/module_code.h"
#include "Host/model/project.h"
#include "Host/model/project_references.h"
#include <algorithm>
#include <fmt/format.h>
#include <unistd.h>

namespace host {
namespace {

std::string fileNameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }
std::string folderNameOf(const std::string& path) { return path.substr(0, path.rfind('/')); }

/// The companion as it lies on disk, in any letter case; "" where there is none.
std::string companionOnDisk(const std::string& path) {
    if (path.empty()) return {};
    PathLookup lookup;
    const auto found = lookup.find(folderNameOf(path), fileNameOf(companionOf(path)));
    return ::access(found.c_str(), F_OK) == 0 ? found : std::string();
}

bool isVbName(const std::string& name) {
    if (name.empty() || name.size() > 255) return false;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c & 0x80); };
    if (!isLetter(name.front())) return false;
    return std::all_of(name.begin(), name.end(), [&](char c) { return isLetter(c) || isDigit(c) || c == '_'; });
}

std::shared_ptr<const ResourceFile> readResources(const std::string& path) {
    try {
        return std::make_shared<ResourceFile>(readFile(path).bytes);
    } catch (const basic::RuntimeError&) {
        return nullptr; // a form whose companion is missing shows its properties' defaults
    }
}

} // namespace

std::string companionOf(const std::string& path) {
    const auto point = path.rfind('.');
    const auto slash = path.rfind('/');
    if (point == std::string::npos || (slash != std::string::npos && point < slash)) return path + ".frx";
    const auto extension = path.substr(point + 1);
    constexpr std::pair<std::string_view, std::string_view> kCompanions[] = {
        {"ctl", "ctx"}, {"pag", "pgx"}, {"dsr", "dsx"}, {"dob", "dox"}};
    for (const auto& [own, companion] : kCompanions)
        if (basic::equalNoCase(extension, own)) return path.substr(0, point + 1).append(companion);
    return path.substr(0, point) + ".frx";
}

Component::Component(const std::shared_ptr<Project>& project, vbide::vbext_ComponentType type, std::string name,
                     SourceFile source, ComponentOrigin origin)
    : project_(project),
      type_(type),
      name_(std::move(name)),
      source_(std::move(source)),
      origin_(std::move(origin)),
      dirty_(origin_.path.empty()) {}

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
    if (!isVbName(name))
        throw hostError(basic::kInvalidPropertyValue, fmt::format("'{}' is not a legal object name", name));
    const auto other = project->components().named(name);
    if (other && other.get() != this) throwNameTaken(name);
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

/// The form's resources go with it, and it refers to them by their new name.
void Component::copyCompanion(Project& project, const std::string& target) {
    const auto companion = companionOnDisk(resourcesOf());
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
    replaceSource(owner()->readSource(memberKindOf(type_), origin_.path));
    dirty_ = false;
    tellReplaced();
}

void Component::restore(std::string bytes, const std::optional<FileStamp>& base) {
    auto loaded = owner()->sourceOf(memberKindOf(type_), std::move(bytes), origin_.path);
    loaded.stamp = base;
    replaceSource(std::move(loaded));
    dirty_ = true;
    tellReplaced();
}

/// What was handed out of the old source raises errors from now on.
void Component::replaceSource(LoadedSource loaded) {
    const auto project = owner();
    const auto name = loaded.name.empty() ? name_ : loaded.name;
    const auto other = project->components().named(name);
    if (other && other.get() != this) throwNameTaken(name);
    designer_.reset();
    resources_.clear();
    source_ = std::move(loaded.source);
    type_ = loaded.type;
    origin_.stamp = loaded.stamp;
    if (code_) code_->replaced();
    if (name != name_) adoptName(name);
}

/// Another one than before: the project's line and settings follow.
void Component::adoptName(const std::string& name) {
    const auto project = owner();
    const auto oldName = std::exchange(name_, name);
    project->components().renamed(*this, oldName);
    project->writeMember(*this);
    project->followRename(oldName, name);
    project->host()->tell(project->componentsEvents->ItemRenamed, shared_from_this(), oldName);
}

void Component::tellReplaced() {
    const auto self = shared_from_this();
    const auto project = owner();
    const auto host = project->host();
    host->tell(project->componentsEvents->ItemReloaded, self);
    host->tell(host->panes.codeChanged, vbide::Ref<vbide::VBComponent>(self));
    if (hasDesigner()) tellPanes(&PaneEvents::designChanged);
}

void Component::remove() {
    designer_.reset();
    project_.reset();
}

void Component::Activate() {
    const auto project = owner();
    const auto self = shared_from_this();
    const auto host = project->host();
    host->select(self);
    if (hasDesigner()) DesignerWindow()->SetFocus();
    host->tell(project->componentsEvents->ItemSelected, self);
    host->tell(project->componentsEvents->ItemActivated, self);
}

vbide::Ref<vbide::CodeModule> Component::CodeModule() {
    owner();
    if (!code_) code_ = std::make_shared<ModuleCode>(weak_from_this());
    return code_;
}

// ---- the designer ------------------------------------------------------------------------------------------------------

bool Component::hasDesigner() const {
    switch (type_) {
    case vbide::vbext_ct_VBForm:
    case vbide::vbext_ct_VBMDIForm:
    case vbide::vbext_ct_PropPage:
    case vbide::vbext_ct_UserControl:
    case vbide::vbext_ct_DocObject: return true;
    default: return false;
    }
}

DesignerHooks Component::designerHooks() {
    // The designer is this component's own: it never outlives it.
    DesignerHooks hooks;
    hooks.changed = [this] {
        changed();
        tellPanes(&PaneEvents::designChanged);
    };
    hooks.controlAdded = [this](const auto& control) { owner()->host()->tell(controlsEvents_->ItemAdded, control); };
    hooks.controlRemoved = [this](const auto& control) {
        owner()->host()->tell(controlsEvents_->ItemRemoved, control);
    };
    hooks.controlRenamed = [this](const auto& control, const std::string& oldName, int oldIndex) {
        owner()->host()->tell(controlsEvents_->ItemRenamed, control, oldName, oldIndex);
    };
    hooks.renameForm = [this](const std::string& name) { Name(name); };
    hooks.objectLine = [this](const std::string& className) { return owner()->references().objectLineOf(className); };
    hooks.resources = [this](const std::string& name) { return resources(name); };
    if (const auto host = owner()->host()) {
        hooks.classes = host->options().controlClasses;
        hooks.classOfProgId = host->options().classOfProgId;
    }
    return hooks;
}

/// Read once: a form refers to its companion many times.
std::shared_ptr<const ResourceFile> Component::resources(const std::string& name) {
    PathLookup lookup;
    const auto path = lookup.find(folderNameOf(resourcesOf()), name);
    const auto [entry, isNew] = resources_.try_emplace(path);
    if (isNew) entry->second = readResources(path);
    return entry->second;
}

FormDesigner& Component::designer() {
    if (!designer_) designer_ = std::make_unique<FormDesigner>(source_.form(), source_.codePage(), designerHooks());
    return *designer_;
}

vbide::Ref<vbide::Properties> Component::Properties() {
    owner();
    if (!hasDesigner()) throw hostError(basic::kPropertyOrMethodNotSupported);
    return designer().Properties();
}

vbide::Ref<vbide::VBForm> Component::Designer() {
    owner();
    if (!hasDesigner()) return nullptr;
    return designer().Designer();
}

bool Component::isDesignedBy(const vbide::Ref<vbide::VBForm>& form) const {
    return designer_ && designer_->Designer() == form;
}

bool Component::HasOpenDesigner() const {
    owner();
    return designerWindow_ && designerWindow_->Visible();
}

/// Nobody is told of a component that has been removed.
void Component::tellPanes(fernwick::Event<vbide::Ref<vbide::VBComponent>> PaneEvents::*event) {
    const auto project = project_.lock();
    const auto host = project ? project->host() : nullptr;
    if (host) host->tell(host->panes.*event, vbide::Ref<vbide::VBComponent>(shared_from_this()));
}

void Component::openDesigner() { DesignerWindow()->Visible(true); }

vbide::Ref<vbide::Window> Component::DesignerWindow() {
    owner();
    if (!hasDesigner()) throw hostError(basic::kPropertyOrMethodNotSupported);
    if (designerWindow_) return designerWindow_;
    designerWindow_ = std::make_shared<ToolWindow>(name_);
    designerEvents_.push_back(designerWindow_->changed.connect([this] { tellPanes(&PaneEvents::designerOpened); }));
    designerEvents_.push_back(designerWindow_->focused.connect([this] { tellPanes(&PaneEvents::designerShown); }));
    return designerWindow_;
}

vbide::Ref<vbide::VBE> Component::VBE() const { return owner()->VBE(); }

vbide::Ref<vbide::VBComponents> Component::Collection() const { return owner()->VBComponents(); }

} // namespace host
