// Reading and saving the files of a component.
#include "Host/files/native_path.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/loaded_source.h"
#include "Host/model/component.h"
#include "Host/model/component_designer.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/form_resources.h"
#include "Host/model/host.h"
#include "Host/model/module_code.h"
#include "Host/model/project.h"

namespace host {

std::string Component::FileNames(int index) const {
    owner();
    if (index == 1) return origin_.path;
    if (index != 2 || FileCount() < 2) throw hostError(basic::kSubscriptOutOfRange);
    return FormResources::onDisk(origin_.path); // a new form has none of its own until it is saved
}

/// The companion of a new form's template counts, because saving the form copies it.
int Component::FileCount() const {
    owner();
    return hasDesigner() && !FormResources::onDisk(resourceOwner()).empty() ? 2 : 1;
}

void Component::SaveAs(const std::string& path) {
    const auto project = owner();
    if (path.empty()) throw hostError(basic::kPathFileAccessError, fmt::format("{}: has no file name", name_));
    const auto target = absolutePath(path);
    const bool same = target == origin_.path;
    auto& resources = designer_->resources();
    if (hasDesigner() && !resources.save(*project, target)) return;
    std::optional<FileStamp> stamp;
    try {
        stamp = project->host()->writeFile(*project, target, source_.bytes(), same ? origin_.stamp : std::nullopt);
    } catch (const basic::RuntimeError&) {
        resources.formNotSaved();
        throw;
    }
    if (!stamp) return resources.formNotSaved();
    origin_.stamp = stamp;
    dirty_.set(false);
    if (same) return;
    origin_.path = target;
    project->writeMember(*this);
}

void Component::becomeNew() {
    template_ = origin_.path;
    origin_ = {};
    dirty_.set(true);
}

void Component::reread() {
    replaceSource(readSource(kindOf(type_).member, origin_.path, owner()->codePage().page));
    designer_->resources().discard();
    dirty_.set(false);
    raiseReplaced();
}

void Component::restore(std::string bytes, const std::optional<FileStamp>& base, const UnsavedRecords& records) {
    auto loaded = sourceOf(kindOf(type_).member, std::move(bytes), origin_.path, owner()->codePage().page);
    loaded.stamp = base;
    replaceSource(std::move(loaded));
    designer_->resources().restore(records);
    dirty_.set(true);
    raiseReplaced();
}

void Component::decodeAgain() {
    auto loaded = sourceOf(kindOf(type_).member, source_.bytes(), origin_.path, owner()->codePage().page);
    loaded.stamp = origin_.stamp;
    replaceSource(std::move(loaded));
    raiseReplaced();
}

/// Objects handed out for the old designer raise errors from now on.
void Component::replaceSource(LoadedSource loaded) {
    const auto project = owner();
    const auto name = loaded.name.empty() ? name_ : loaded.name;
    project->components().requireFree(name, *this);
    designer_->reset();
    source_ = std::move(loaded.source);
    type_ = loaded.type;
    origin_.stamp = loaded.stamp;
    if (code_) code_->replaced();
    if (name != name_) adoptName(name);
}

} // namespace host
