// The list of dependency files.
#include "Add-in/build/dependencies/modDependencyManagement.h"
#include "Basic/text.h"
#include <algorithm>

namespace fernwick {

void modDependencyManagement::ClearDependencyList(tResourceList& list) { list.entries.clear(); }

bool modDependencyManagement::ResourceinDependencyList(const std::string& name, const tResourceList& list) {
    return std::any_of(list.begin(), list.end(), [&](const tResource& entry) { return entry.FileName == name; });
}

void modDependencyManagement::AddDependency(const tResource& resource, tResourceList& list) {
    if (!resource.FileName.empty()) list.entries.push_back(resource);
}

std::int32_t modDependencyManagement::FindResourceIndex(const std::string& name, const tResourceList& list) {
    const auto capitals = basic::UCase(name);
    const auto at = std::find_if(list.begin(), list.end(),
                                 [&](const tResource& entry) { return basic::UCase(entry.FileName) == capitals; });
    return at == list.end() ? -1 : std::int32_t(at - list.begin());
}

void modDependencyManagement::RemoveDependency(std::int32_t index, tResourceList& list) {
    if (index == -1) return;
    if (index < 0 || index >= list.Count()) throw basic::RuntimeError(basic::kSubscriptOutOfRange);
    list.entries.erase(list.entries.begin() + index);
}

} // namespace fernwick
