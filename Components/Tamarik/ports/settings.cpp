#include "Components/Tamarik/ports/settings.h"

namespace tamarik {

namespace {

template <class Map>
auto* entry(Map& map, std::string_view name) {
    const auto found = map.find(name);
    return found == map.end() ? nullptr : &found->second;
}

template <class Map>
bool removeFrom(Map& map, std::string_view name) {
    const auto found = map.find(name);
    if (found == map.end()) return false;
    map.erase(found);
    return true;
}

} // namespace

const MemorySettings::Section* MemorySettings::sectionOf(std::string_view application, std::string_view section) const {
    const auto* const sections = entry(applications_, application);
    return sections ? entry(*sections, section) : nullptr;
}

std::optional<std::string> MemorySettings::find(std::string_view application, std::string_view section,
                                                std::string_view key) const {
    const Section* const values = sectionOf(application, section);
    const std::string* const value = values ? entry(*values, key) : nullptr;
    return value ? std::optional(*value) : std::nullopt;
}

void MemorySettings::store(std::string_view application, std::string_view section, std::string_view key,
                           std::string_view value) {
    applications_[std::string(application)][std::string(section)][std::string(key)] = value;
}

bool MemorySettings::remove(std::string_view application, std::optional<std::string_view> section,
                            std::optional<std::string_view> key) {
    if (!section) return removeFrom(applications_, application);
    auto* const sections = entry(applications_, application);
    if (!sections) return false;
    if (!key) return removeFrom(*sections, *section);
    auto* const values = entry(*sections, *section);
    return values && removeFrom(*values, *key);
}

std::vector<std::pair<std::string, std::string>> MemorySettings::all(std::string_view application,
                                                                     std::string_view section) const {
    const Section* const values = sectionOf(application, section);
    if (!values) return {};
    return {values->begin(), values->end()};
}

} // namespace tamarik
