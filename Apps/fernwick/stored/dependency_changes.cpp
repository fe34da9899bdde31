#include "Apps/fernwick/stored/dependency_changes.h"
#include "Add-in/core/stored_lists.h"
#include "Apps/fernwick/options/exit_status.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::modDependencyManagement;
using fernwick::tResource;
using fernwick::tResourceList;

struct NewDependency {
    std::string path;
    /// Relative to the project's folder; "" for a file outside it.
    std::string relative;
};

std::string projectFolderOf(Session& session) {
    return session.machine().platform().files.GetParentFolderName(session.path());
}

/// Returns why the file cannot be copied without overwriting another file; "" if it can.
std::string takenPlace(Session& session, const NewDependency& added) {
    if (!added.relative.empty()) return {};
    const auto& files = session.machine().platform().files;
    const auto place = files.BuildPath(projectFolderOf(session), files.GetFileName(added.path));
    const bool isFree = !files.FolderExists(place) &&
                        (!files.FileExists(place) || files.ReadBytes(place) == files.ReadBytes(added.path));
    return isFree ? std::string()
                  : fmt::format("{} already exists and differs from {}; rename one of them", place, added.path);
}

/// Checks everything before the first file is copied. Refusals: not a file, a name that cannot be stored, an existing
/// other file.
NewDependency newDependency(Session& session, const std::string& operand) {
    const auto& files = session.machine().platform().files;
    NewDependency added;
    added.path = files.Canonical(files.GetAbsolutePathName(operand));
    if (files.FolderExists(added.path)) throw Refusal(kWrongUse, fmt::format("{}: is a folder, not a file", operand));
    if (!files.FileExists(added.path)) throw Refusal(kWrongUse, fmt::format("{}: file not found", operand));
    added.relative = session.addIn().dependencies.CreateRelativePath(projectFolderOf(session), added.path);
    const auto name = added.relative.empty() ? files.GetFileName(added.path) : added.relative;
    if (name.find(',') != name.npos)
        throw Refusal(kWrongUse,
                      fmt::format("{}: the names of dependencies must not contain commas; rename the file", operand));
    if (const auto taken = takenPlace(session, added); !taken.empty()) throw Refusal(kProjectErrors, taken);
    return added;
}

/// Appends the file's entry. Returns why it could not; "" on success.
std::string addDependency(Session& session, const NewDependency& added, tResourceList& list) {
    if (auto taken = takenPlace(session, added); !taken.empty()) return taken; // by a file added just before
    const auto entry = session.addIn().dependencies.CreateNewDependency(session.project(), added.path, true);
    if (entry.FileName.empty())
        return fmt::format("{} is outside the project folder and was not added; copy it there with --yes", added.path);
    // the add-in has reported a failed copy and still returns an entry
    if (isMissing(session, entry)) return fmt::format("{} could not be copied and was not added", added.path);
    if (modDependencyManagement::FindResourceIndex(entry.FileName, list) < 0)
        modDependencyManagement::AddDependency(entry, list);
    return {};
}

/// Returns false if a file was not added. The others are added nevertheless.
bool addDependencies(Session& session, const DependencyOperands& operands, tResourceList& list, Console& console) {
    std::vector<NewDependency> added;
    for (const auto& operand : operands.files) added.push_back(newDependency(session, operand));
    bool all = true;
    for (const auto& one : added) {
        const auto reason = addDependency(session, one, list);
        if (reason.empty()) continue;
        console.err("fernwick: " + reason, Tone::Error);
        all = false;
    }
    return all;
}

/// Finds an entry by its stored name or by the path of its file.
std::int32_t indexOfDependency(Session& session, const std::string& operand, const tResourceList& list) {
    auto stored = operand;
    std::replace(stored.begin(), stored.end(), '/', '\\');
    const auto byName = modDependencyManagement::FindResourceIndex(stored, list);
    if (byName >= 0) return byName;
    const auto path = session.machine().platform().files.GetAbsolutePathName(operand);
    const auto relative = session.addIn().dependencies.CreateRelativePath(projectFolderOf(session), path);
    const auto byPath = relative.empty() ? -1 : modDependencyManagement::FindResourceIndex(relative, list);
    if (byPath < 0) throw Refusal(kWrongUse, fmt::format("{} is not a dependency of the project", operand));
    return byPath;
}

void removeDependencies(Session& session, const DependencyOperands& operands, tResourceList& list) {
    for (const auto& operand : operands.files)
        modDependencyManagement::RemoveDependency(indexOfDependency(session, operand, list), list);
}

bool sameEntries(const tResourceList& a, const tResourceList& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const tResource& x, const tResource& y) {
        return x.FileName == y.FileName && x.FileType == y.FileType;
    });
}

/// Reads the list back, because a name can contain characters outside the project's code page.
void storeDependencies(Session& session, const tResourceList& list) {
    auto& dependencies = session.addIn().dependencies;
    if (list.entries.size() > fernwick::kMostStoredEntries)
        throw Refusal(kProjectErrors, fmt::format("{}: a project stores at most {} dependencies; the list was not "
                                                  "changed",
                                                  session.path(), fernwick::kMostStoredEntries));
    dependencies.WriteProjectDependencies(session.project(), list);
    if (!sameEntries(dependencies.ReadProjectDependencies(session.project()), list))
        throw Refusal(kProjectErrors, fmt::format("{}: the project file cannot store these names; nothing was changed",
                                                  session.path()));
}

} // namespace

bool isMissing(Session& session, const tResource& entry) {
    return !session.addIn().dependencies.ValidateDependencyList(session.project(), tResourceList{{entry}});
}

int changeDependencies(Session& session, const DependencyOperands& operands, Console& console) {
    session.requireFernwickProject();
    session.requireWritableProject();
    const auto before = session.addIn().dependencies.ReadProjectDependencies(session.project());
    auto list = before;
    int status = kGood;
    if (operands.action == "remove")
        removeDependencies(session, operands, list);
    else if (!addDependencies(session, operands, list, console))
        status = kProjectErrors;
    if (sameEntries(list, before)) {
        session.closeUnsaved();
        return status;
    }
    storeDependencies(session, list);
    if (!session.closeAndSave()) throw Refusal(kMachineTrouble, session.path() + " cannot be saved");
    return status;
}

} // namespace cli
