// Dependency lists: a count, and entries under numbered keys from 1.
#include "Add-in/core/preference_keys.h"
#include "Add-in/project/clsQLProject.h"
#include "Add-in/project/property_sections.h"
#include "Basic/conversions.h"
#include "Basic/text.h"

namespace fernwick {

/// The names of one family's procedures and keys.
struct clsQLProject::DependencyFamily {
    const char* list;
    const char* entry;
    const char* writer;
    const char* reader;

    std::string countKey() const { return std::string("Num") + list; }
    std::string entryKey(std::int32_t index) const { return entry + std::to_string(index); }
};

const clsQLProject::DependencyFamily clsQLProject::kComponents{
    "ComponentDependencies", "ComponentDependency", "WriteComponentDependencies", "GetComponentDependencies"};
const clsQLProject::DependencyFamily clsQLProject::kTavletFiles{
    "TavletFileDependencies", "TavletFileDependency", "WriteTavletFileDependencies", "GetTavletFileDependencies"};
const clsQLProject::DependencyFamily clsQLProject::kFonts{"FontDependencies", "FontDependency",
                                                          "WriteProjectFontDependencies", "GetFontDependencies"};

void clsQLProject::WriteComponentDependencies(const std::vector<std::string>& ComponentModIDs) {
    std::vector<std::string> capitals;
    for (const auto& id : ComponentModIDs) capitals.push_back(basic::UCase(id));
    writeDependencies(kComponents, capitals);
}
std::vector<std::string> clsQLProject::GetComponentDependencies() const { return getDependencies(kComponents); }

void clsQLProject::WriteTavletFileDependencies(const std::vector<std::string>& TavletFileDependencies) {
    writeDependencies(kTavletFiles, TavletFileDependencies);
}
std::vector<std::string> clsQLProject::GetTavletFileDependencies() const { return getDependencies(kTavletFiles); }

void clsQLProject::WriteProjectFontDependencies(const std::vector<std::string>& ProjectFontDependencies) {
    writeDependencies(kFonts, ProjectFontDependencies);
}
std::vector<std::string> clsQLProject::GetFontDependencies() const { return getDependencies(kFonts); }

std::int32_t clsQLProject::dependencyCount(const DependencyFamily& family) const {
    std::int32_t count = 0;
    (void)basic::attempt([&] { count = basic::CLng(project_->ReadProperty(kDependenciesSection, family.countKey())); });
    return count <= kMostStoredEntries ? count : 0;
}

void clsQLProject::setDependencyCount(const DependencyFamily& family, std::int32_t count) {
    Procedure here{services_.errors, withProjectName("clsQLProject.SetNum") + family.list};
    here([&] { project_->WriteProperty(kDependenciesSection, family.countKey(), basic::CStr(count)); });
}

void clsQLProject::clearDependencies(const DependencyFamily& family) {
    Procedure here{services_.errors, withProjectName("clsQLProject.Clear") + family.list};
    // An entry's key stays with an empty value: the host has no way to take a key away.
    for (std::int32_t i = 1, count = dependencyCount(family); i <= count; ++i)
        here([&] { project_->WriteProperty(kDependenciesSection, family.entryKey(i), ""); });
    setDependencyCount(family, 0);
}

void clsQLProject::writeDependencies(const DependencyFamily& family, const std::vector<std::string>& entries) {
    Procedure here{services_.errors, withProjectName("clsQLProject.") + family.writer};
    clearDependencies(family);
    setDependencyCount(family, std::int32_t(entries.size()));
    std::int32_t index = 0;
    for (const auto& entry : entries) {
        ++index;
        here([&] { project_->WriteProperty(kDependenciesSection, family.entryKey(index), entry); });
    }
}

std::vector<std::string> clsQLProject::getDependencies(const DependencyFamily& family) const {
    Procedure here{services_.errors, withProjectName("clsQLProject.") + family.reader};
    std::vector<std::string> entries;
    for (std::int32_t i = 1, count = dependencyCount(family); i <= count; ++i)
        here([&] { entries.push_back(project_->ReadProperty(kDependenciesSection, family.entryKey(i))); });
    return entries;
}

} // namespace fernwick
