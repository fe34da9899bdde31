#include "Add-in/project/stored/project_store.h"
#include "Add-in/core/stored_lists.h"
#include "Basic/case_folding.h"
#include "Basic/conversions.h"

namespace fernwick {

bool isNumberedKey(std::string_view key, std::string_view beginning) {
    constexpr std::string_view kDigits = "0123456789";
    return basic::startsWithNoCase(key, beginning) && key.size() > beginning.size() &&
           key.find_first_not_of(kDigits, beginning.size()) == key.npos;
}

std::int32_t ProjectStore::readCount(const char* section, const std::string& key) const {
    std::int32_t count = 0;
    (void)basic::attempt([&] { count = basic::CLng(read(section, key)); });
    return count >= 0 && count <= kMostStoredEntries ? count : 0;
}

void ProjectStore::write(Procedure& here, const char* section, const std::string& key, const std::string& value) {
    here([&] { project->WriteProperty(section, key, value); });
}

void ProjectStore::reportUnlessAbsent(const std::string& location, const basic::RuntimeError& error) const {
    if (error.Number != basic::kInvalidProcedureCall) errors().Error_ShowAddInError(location, error);
}

std::string ProjectStore::folder() const {
    Procedure here{errors(), "clsQLProject.Get_ProjectPath"};
    return here.value([&] { return services().platform.files.GetParentFolderName(project->FileName()); });
}

std::string ProjectStore::withProjectName(const std::string& procedure) const {
    std::string name;
    (void)basic::attempt([&] { name = project->Name(); });
    return name + " " + procedure;
}

} // namespace fernwick
