#include "Apps/fernwick/options/exit_status.h"
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/project_argument.h"
#include "Apps/fernwick/run/session.h"
#include "Apps/fernwick/verbs/verbs.h"
#include "Basic/case_folding.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::modDependencyManagement;
using fernwick::tResource;
using fernwick::tResourceList;

/// The operands as what they mean: [PROJECT] [ACTION] [FILE...].
struct DependencyOperands {
    std::string project, action = "list";
    std::vector<std::string> files;
};

bool isProjectName(const std::string& operand) {
    return operand.size() > 4 && basic::equalNoCase(std::string_view(operand).substr(operand.size() - 4), ".vbp");
}

bool isDependencyAction(const std::string& operand) {
    return operand == "list" || operand == "add" || operand == "remove";
}

/// The project may stand before its action or behind it, as with settings.
DependencyOperands dependencyOperands(const std::vector<std::string>& operands) {
    DependencyOperands meant;
    auto next = operands.begin();
    bool hasAction = false;
    for (; next != operands.end(); ++next) {
        if (meant.project.empty() && isProjectName(*next))
            meant.project = *next;
        else if (!hasAction && isDependencyAction(*next))
            meant.action = *next, hasAction = true;
        else
            break;
    }
    meant.files.assign(next, operands.end());
    if (!hasAction && !meant.files.empty())
        throw Refusal(kWrongUse, fmt::format("dependencies takes list, add or remove, not {}", meant.files.front()));
    if (hasAction && meant.files.empty() != (meant.action == "list"))
        throw Refusal(kWrongUse, meant.action == "list" ? "dependencies list takes no files"
                                                        : fmt::format("dependencies {}: which files?", meant.action));
    return meant;
}

// ---- list ----

bool isMissing(Session& session, const tResource& entry) {
    return !session.addIn().dependencies.ValidateDependencyList(session.project(), tResourceList{{entry}});
}

int listDependencies(Session& session, const Options& options, Console& console) {
    auto json = jsonResult("dependencies");
    json["project"] = session.path();
    json["dependencies"] = Json::array();
    for (const auto& entry : session.addIn().dependencies.ReadProjectDependencies(session.project())) {
        if (entry.FileName.empty()) continue; // what could not be read
        const bool missing = isMissing(session, entry);
        if (options.format == Format::Json)
            json["dependencies"].push_back({{"name", entry.FileName},
                                            {"type", entry.FileType},
                                            {"size", missing ? Json(nullptr) : Json(entry.FileSize)},
                                            {"missing", missing}});
        else
            console.out(fmt::format("{:>10}  {:<4}  {}\n", missing ? "missing" : std::to_string(entry.FileSize),
                                    entry.FileType, entry.FileName));
    }
    if (options.format == Format::Json) console.out(dumpJson(json));
    session.closeUnsaved();
    return kGood;
}

// ---- add ----

/// A file as it is to be added.
struct NewDependency {
    std::string path;
    /// Relative to the project's folder; "" for a file outside of it.
    std::string relative;
};

std::string projectFolderOf(Session& session) {
    return session.machine().platform().files.GetParentFolderName(session.path());
}

/// Why a file can't be copied: the copy would replace one of the project that has nothing to do with it. "" for none.
std::string takenPlace(Session& session, const NewDependency& added) {
    if (!added.relative.empty()) return {};
    const auto& files = session.machine().platform().files;
    const auto place = files.BuildPath(projectFolderOf(session), files.GetFileName(added.path));
    const bool isFree = !files.FolderExists(place) &&
                        (!files.FileExists(place) || files.ReadBytes(place) == files.ReadBytes(added.path));
    return isFree ? std::string() : fmt::format("{} is another file than {}; rename one of them", place, added.path);
}

/// Refusals before anything is copied: what is no file, and names that the stored form can't carry.
NewDependency newDependency(Session& session, const std::string& operand) {
    const auto& files = session.machine().platform().files;
    NewDependency added;
    added.path = files.Canonical(files.GetAbsolutePathName(operand));
    if (files.FolderExists(added.path)) throw Refusal(kWrongUse, fmt::format("{}: is a folder, not a file", operand));
    if (!files.FileExists(added.path)) throw Refusal(kWrongUse, fmt::format("{}: there is no such file", operand));
    added.relative = session.addIn().dependencies.CreateRelativePath(projectFolderOf(session), added.path);
    const auto name = added.relative.empty() ? files.GetFileName(added.path) : added.relative;
    if (name.find(',') != name.npos)
        throw Refusal(kWrongUse, fmt::format("{}: a dependency's name is stored with \",\" behind it and can't hold "
                                             "one; rename the file",
                                             operand));
    if (const auto taken = takenPlace(session, added); !taken.empty()) throw Refusal(kProjectErrors, taken);
    return added;
}

/// Appends the file's entry. Why it did not; "" when it did.
std::string addDependency(Session& session, const NewDependency& added, tResourceList& list) {
    if (auto taken = takenPlace(session, added); !taken.empty()) return taken; // by another of the same name
    const auto entry = session.addIn().dependencies.CreateNewDependency(session.project(), added.path, true);
    if (entry.FileName.empty())
        return fmt::format("{} lies outside of the project's folder and was not added; --yes copies it there",
                           added.path);
    // the add-in reports a copy that fails, and goes on
    if (isMissing(session, entry)) return fmt::format("{} could not be copied and was not added", added.path);
    if (modDependencyManagement::FindResourceIndex(entry.FileName, list) < 0)
        modDependencyManagement::AddDependency(entry, list);
    return {};
}

/// False when one was not added, which keeps no other from it.
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

// ---- remove ----

/// An entry by its stored name, or by the path of its file.
std::int32_t indexOfDependency(Session& session, const std::string& operand, const tResourceList& list) {
    auto stored = operand;
    std::replace(stored.begin(), stored.end(), '/', '\\');
    const auto byName = modDependencyManagement::FindResourceIndex(stored, list);
    if (byName >= 0) return byName;
    const auto path = session.machine().platform().files.GetAbsolutePathName(operand);
    const auto relative = session.addIn().dependencies.CreateRelativePath(projectFolderOf(session), path);
    const auto byPath = relative.empty() ? -1 : modDependencyManagement::FindResourceIndex(relative, list);
    if (byPath < 0) throw Refusal(kWrongUse, fmt::format("{} is no dependency of the project", operand));
    return byPath;
}

void removeDependencies(Session& session, const DependencyOperands& operands, tResourceList& list) {
    for (const auto& operand : operands.files)
        modDependencyManagement::RemoveDependency(indexOfDependency(session, operand, list), list);
}

// ---- what both end with ----

bool sameEntries(const tResourceList& a, const tResourceList& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const tResource& x, const tResource& y) {
        return x.FileName == y.FileName && x.FileType == y.FileType;
    });
}

/// What is read back must be what was written: a project's code page can lack a name's characters.
void storeDependencies(Session& session, const tResourceList& list) {
    auto& dependencies = session.addIn().dependencies;
    dependencies.WriteProjectDependencies(session.project(), list);
    if (!sameEntries(dependencies.ReadProjectDependencies(session.project()), list))
        throw Refusal(kProjectErrors,
                      fmt::format("{}: the project's file can't hold these names; nothing was stored", session.path()));
}

int changeDependencies(Session& session, const DependencyOperands& operands, Console& console) {
    session.requireFernwickProject();
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
    if (!session.closeAndSave()) throw Refusal(kMachineTrouble, session.path() + " could not be saved");
    return status;
}

} // namespace

int runDependencies(const Options& options, Console& console) {
    auto operands = dependencyOperands(options.operands);
    Session session{options, console};
    session.open(projectArgument(operands.project));
    session.takeUp();
    return operands.action == "list" ? listDependencies(session, options, console)
                                     : changeDependencies(session, operands, console);
}

} // namespace cli
