#include "Add-in/project/stored/dependency_list.h"
#include "Add-in/core/stored_lists.h"
#include "Basic/conversions.h"

namespace fernwick {

std::string DependencyList::location(const std::string& procedure) const {
    return store().withProjectName("clsQLProject." + procedure);
}

std::int32_t DependencyList::count() const { return store().readCount(kDependenciesSection, countKey()); }

void DependencyList::setCount(std::int32_t count) {
    Procedure here{store().errors(), location("SetNum" + name())};
    store().write(here, kDependenciesSection, countKey(), basic::CStr(count));
}

void DependencyList::clear() {
    Procedure here{store().errors(), location("Clear" + name())};
    // An entry's key remains, with an empty value: the host cannot remove a key.
    for (std::int32_t i = 1, last = count(); i <= last; ++i) store().write(here, kDependenciesSection, entryKey(i), "");
    setCount(0);
}

void DependencyList::write(const Values& entries) {
    Procedure here{store().errors(), location(writer_)};
    if (!here([&] { requireStorableCount(entries.size()); })) return;
    clear();
    setCount(std::int32_t(entries.size()));
    std::int32_t index = 0;
    for (const auto& entry : entries) store().write(here, kDependenciesSection, entryKey(++index), entry);
}

ProjectSetting::Values DependencyList::values() const {
    Procedure here{store().errors(), location("Get" + name())};
    Values entries;
    for (std::int32_t i = 1, last = count(); i <= last; ++i)
        here([&] { entries.push_back(store().read(kDependenciesSection, entryKey(i))); });
    return entries;
}

} // namespace fernwick
