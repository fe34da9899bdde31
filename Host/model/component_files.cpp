// Reading and saving the files of a component.
#include "Host/files/native_path.h"
#include "Host/files/path_lookup.h"
#include "Host/model/code/component_kind.h"
#include "Host/model/code/loaded_source.h"
#include "Host/model/component.h"
#include "Host/model/component_designer.h"
#include "Host/model/errors/host_errors.h"
#include "Host/model/host.h"
#include "Host/model/module_code.h"
#include "Host/model/project.h"
#include <unistd.h>

namespace host {
namespace {

/// The companion on disk, in any letter case; "" if there is none.
std::string companionOnDisk(const std::string& path) {
    if (path.empty()) return {};
    const auto found = PathLookup().find(folderOf(path), fileNameOf(companionOf(path)));
    return ::access(found.c_str(), F_OK) == 0 ? found : std::string();
}

} // namespace

std::string Component::FileNames(int index) const {
    owner();
    if (index == 1) return origin_.path;
    if (index != 2 || FileCount() < 2) throw hostError(basic::kSubscriptOutOfRange);
    return companionOnDisk(origin_.path); // a new form has none of its own until it is saved
}

/// The companion of a new form's template counts, because saving the form copies it.
int Component::FileCount() const {
    owner();
    return hasDesigner() && !companionOnDisk(resourceOwner()).empty() ? 2 : 1;
}

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
    project->components().requireFree(name, *this);
    designer_->reset();
    source_ = std::move(loaded.source);
    type_ = loaded.type;
    origin_.stamp = loaded.stamp;
    if (code_) code_->replaced();
    if (name != name_) adoptName(name);
}

} // namespace host
