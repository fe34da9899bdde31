// The list of dependency files that is stored in the project.
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Add-in/core/stored_lists.h"
#include "Basic/conversions.h"
#include "Basic/text.h"
#include "Basic/text_search.h"

namespace fernwick {

namespace {

std::string dependencyKey(std::int32_t index) { return kDependencyKey + std::to_string(index); }

/// Returns the stored count: empty if it cannot be read, 0 if it exceeds kMostStoredEntries.
std::optional<std::int32_t> storedDependencies(const basic::Ref<vbide::VBProject>& project) {
    std::optional<std::int32_t> count;
    (void)basic::attempt([&] { count = basic::CLng(project->ReadProperty(kProjectDependencies, kNumDependencies)); });
    if (count && *count > kMostStoredEntries) count = 0;
    return count;
}

} // namespace

tResourceList modDependencyManagement::ReadProjectDependencies(const Project& project) {
    tResourceList list;
    const auto count = storedDependencies(project).value_or(0);
    for (std::int32_t index = 0; index < count; ++index) list.entries.push_back(readDependency(project, index));
    return list;
}

tResource modDependencyManagement::readDependency(const Project& project, std::int32_t index) {
    tResource entry;
    basic::Suppressed quietly;
    std::vector<std::string> fields;
    quietly([&] { fields = basic::Split(project->ReadProperty(kProjectDependencies, dependencyKey(index)), ",", 2); });
    if (!fields.empty()) entry.FileName = fields[0];
    if (fields.size() > 1) entry.FileType = basic::UCase(fields[1]);
    if (!entry.FileName.empty()) quietly([&] { entry.FileSize = fileSize(PlaceOf(project, entry)); });
    return entry;
}

void modDependencyManagement::ClearProjectDependencies(const Project& project) {
    Procedure here{services_.errors, "modDependencyManagement.ClearProjectDependencies"};
    const auto count = storedDependencies(project);
    if (!count) return;
    for (std::int32_t index = 0; index < *count; ++index) {
        const auto isThere = [&] { (void)project->ReadProperty(kProjectDependencies, dependencyKey(index)); };
        if (basic::attempt(isThere).Number == 0)
            here([&] { project->WriteProperty(kProjectDependencies, dependencyKey(index), ""); });
    }
    here([&] { project->WriteProperty(kProjectDependencies, kNumDependencies, "0"); });
}

void modDependencyManagement::WriteProjectDependencies(const Project& project, const tResourceList& list) {
    Procedure here{services_.errors, "modDependencyManagement.WriteProjectDependencies"};
    if (!here([&] { requireStorableCount(list.entries.size()); })) return;
    ClearProjectDependencies(project);
    here([&] { project->WriteProperty(kProjectDependencies, kNumDependencies, basic::CStr(list.Count())); });
    std::int32_t index = 0;
    for (const auto& entry : list) {
        const auto value = entry.FileName + "," + entry.FileType;
        here([&] { project->WriteProperty(kProjectDependencies, dependencyKey(index), value); });
        ++index;
    }
}

bool modDependencyManagement::ValidateDependencyList(const Project& project, const tResourceList& list) {
    Procedure here{services_.errors, "modDependencyManagement.ValidateDependencyList"};
    for (const auto& entry : list)
        if (here.test([&] { return !services_.platform.files.FileExists(PlaceOf(project, entry)); })) return false;
    return true;
}

std::string modDependencyManagement::PlaceOf(const Project& project, const tResource& entry) const {
    const auto installed = entry.FileType == kFontType ? inFontsFolder(entry.FileName) : std::string{};
    if (!installed.empty()) return installed;
    return services_.platform.files.BuildPath(projectFolder(project), entry.FileName);
}

/// Returns the path of the file of this name in the fonts folder; "" for none.
std::string modDependencyManagement::inFontsFolder(const std::string& name) const {
    const auto& files = services_.platform.files;
    const auto folder = services_.install.GetQuinloftFontsDir();
    if (folder.empty() || name.empty()) return {};
    const auto path = files.BuildPath(folder, name);
    return files.FileExists(path) ? files.Canonical(path) : std::string{};
}

std::string modDependencyManagement::projectFolder(const Project& project) const {
    return services_.platform.files.GetParentFolderName(project->FileName());
}

/// Error 6 for a file whose size exceeds 32 bits.
std::int32_t modDependencyManagement::fileSize(const std::string& path) const {
    return basic::CLng(services_.platform.files.GetSize(path));
}

} // namespace fernwick
