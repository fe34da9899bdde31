#include "Host/registry/registry_tree.h"
#include "Basic/case_folding.h"
#include "Host/registry/reg_status.h"
#include <algorithm>

namespace host {

RegistryTree::Key* RegistryTree::find(const KeyPath& key) const {
    auto* at = root_.get();
    for (const auto& folded : key.foldedNames()) {
        const auto next = at->subkeys.find(folded);
        if (next == at->subkeys.end()) return nullptr;
        at = next->second.get();
    }
    return at;
}

RegistryTree::Key& RegistryTree::make(const KeyPath& key) {
    auto* at = root_.get();
    for (std::size_t i = 0; i < key.names().size(); ++i) {
        auto& subkey = at->subkeys[key.foldedNames()[i]];
        if (!subkey) subkey = std::make_unique<Key>(Key{key.names()[i], {}, {}});
        at = subkey.get();
    }
    return *at;
}

std::vector<std::string> RegistryTree::subkeys(const KeyPath& key) const {
    std::vector<std::string> names;
    if (const auto* at = find(key))
        for (const auto& [folded, subkey] : at->subkeys) names.push_back(subkey->name);
    return names;
}

std::vector<NamedRegValue> RegistryTree::values(const KeyPath& key) const {
    std::vector<NamedRegValue> named;
    const auto* at = find(key);
    if (!at) return named;
    std::vector<const Value*> found;
    for (const auto& [folded, value] : at->values) found.push_back(&value);
    std::sort(found.begin(), found.end(), [](auto* a, auto* b) { return a->position < b->position; });
    for (const auto* value : found) named.push_back(value->named);
    return named;
}

std::optional<RegValue> RegistryTree::value(const KeyPath& key, const std::string& name) const {
    const auto* at = find(key);
    if (!at) return std::nullopt;
    const auto found = at->values.find(basic::foldCase(name));
    if (found == at->values.end()) return std::nullopt;
    return found->second.named.value;
}

bool RegistryTree::createKey(const KeyPath& key) {
    if (hasKey(key)) return false;
    make(key);
    return true;
}

void RegistryTree::setValue(const KeyPath& key, const std::string& name, const RegValue& value) {
    auto& slot = make(key).values[basic::foldCase(name)];
    if (slot.position == 0) slot = {++lastPosition_, {name, {}}};
    slot.named.value = value;
}

bool RegistryTree::deleteValue(const KeyPath& key, const std::string& name) {
    auto* at = find(key);
    return at && at->values.erase(basic::foldCase(name)) > 0;
}

bool RegistryTree::deleteKey(const KeyPath& key) {
    const auto* at = find(key);
    if (!at) return false;
    requireReg(at != root_.get() && at->subkeys.empty(), RegStatus::AccessDenied);
    find(key.parent())->subkeys.erase(key.foldedNames().back());
    return true;
}

} // namespace host
