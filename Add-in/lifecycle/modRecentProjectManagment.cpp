#include "Add-in/lifecycle/modRecentProjectManagment.h"
#include <algorithm>

namespace fernwick {

namespace {

constexpr char kRecentKey[] = "SOFTWARE\\Quinloft\\Recent Projects";

std::string nameKey(std::int32_t n) { return "ProjectName" + std::to_string(n); }
std::string pathKey(std::int32_t n) { return "ProjectPath" + std::to_string(n); }

std::string textOf(modRegistry2& registry, const RegistryKey& key, const std::string& name) {
    auto value = registry.GetStringValue(key.handle(), name);
    return value.ok() && value.type == REG_SZ ? std::move(value.text) : std::string{};
}

} // namespace

void modRecentProjectManagment::AddProjectToRecentList(const basic::Ref<clsQLProject>& project) {
    Procedure here{errors_, "modRecentProjectManagment.AddProjectToRecentList"};
    const auto path = here.value([&] { return project->VBProject()->FileName(); });
    const std::string name = project->DisplayName();
    if (path.empty() || name.empty()) return; // an empty name would end the list
    RecentList list{{name, path}};
    for (auto& older : GetRecentList())
        if (!files_.SamePath(older.path, path)) list.push_back(std::move(older));
    list.resize(kMostRecent);
    SaveRecentList(list);
}

modRecentProjectManagment::RecentList modRecentProjectManagment::GetRecentList() {
    RecentList list(kMostRecent);
    for (std::int32_t n = 1; n <= kMostRecent; ++n) {
        auto project = GetQuinloftRecentProject(n);
        if (project.name.empty()) break;
        list[std::size_t(n - 1)] = std::move(project);
    }
    return list;
}

void modRecentProjectManagment::SaveRecentList(const RecentList& list) {
    for (std::size_t i = 0; i < list.size(); ++i) SetQuinloftRecentProject(list[i], std::int32_t(i + 1));
}

RecentProject modRecentProjectManagment::GetQuinloftRecentProject(std::int32_t n) {
    const RegistryKey key{registry_, registry_.OpenKey(HKEY_CURRENT_USER, kRecentKey, KEY_QUERY_VALUE)};
    if (!key) return {};
    return {textOf(registry_, key, nameKey(n)), textOf(registry_, key, pathKey(n))};
}

void modRecentProjectManagment::SetQuinloftRecentProject(const RecentProject& project, std::int32_t n) {
    const RegistryKey key{registry_, registry_.OpenOrCreateKey(HKEY_CURRENT_USER, kRecentKey, KEY_SET_VALUE)};
    if (!key) return;
    registry_.SetValue(key.handle(), nameKey(n), project.name, REG_SZ);
    registry_.SetValue(key.handle(), pathKey(n), project.path, REG_SZ);
}

} // namespace fernwick
