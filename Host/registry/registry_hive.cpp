#include "Host/registry/registry_hive.h"
#include "Basic/case_folding.h"
#include "Host/registry/reg_status.h"
#include <map>
#include <set>

namespace host {

bool RegistryHive::hasKey(const KeyPath& key) {
    if (own_.hasKey(key)) return true;
    auto* below = below_();
    return below && below->hasKey(key);
}

std::vector<std::string> RegistryHive::subkeys(const KeyPath& key) {
    auto names = own_.subkeys(key);
    auto* below = below_();
    if (!below) return names;
    std::set<std::string, basic::NoCaseLess> merged(names.begin(),
                                                    names.end()); // the database's spelling takes precedence
    for (auto& name : below->subkeys(key)) merged.insert(std::move(name));
    return {merged.begin(), merged.end()};
}

std::vector<NamedRegValue> RegistryHive::values(const KeyPath& key) {
    auto* below = below_();
    if (!below) return own_.values(key);
    auto merged = below->values(key);
    std::map<std::string, std::size_t, basic::NoCaseLess> places;
    for (std::size_t i = 0; i < merged.size(); ++i) places.emplace(merged[i].name, i);
    for (auto& one : own_.values(key)) {
        const auto place = places.find(one.name);
        if (place == places.end())
            merged.push_back(std::move(one));
        else
            merged[place->second] = std::move(one);
    }
    return merged;
}

std::optional<RegValue> RegistryHive::value(const KeyPath& key, const std::string& name) {
    if (auto own = own_.value(key, name)) return own;
    auto* below = below_();
    return below ? below->value(key, name) : std::nullopt;
}

bool RegistryHive::createKey(const KeyPath& key) {
    if (hasKey(key)) return false;
    own_.createKey(key);
    return true;
}

bool RegistryHive::deleteValue(const KeyPath& key, const std::string& name) {
    auto* below = below_();
    if (own_.deleteValue(key, name)) return true;
    if (below && below->value(key, name)) throw RegFailure{RegStatus::AccessDenied};
    return false;
}

bool RegistryHive::deleteKey(const KeyPath& key) {
    auto* below = below_();
    if (below && below->hasKey(key)) throw RegFailure{RegStatus::AccessDenied};
    return own_.deleteKey(key);
}

} // namespace host
