#pragma once
// A store as its users see it: a database layered over the values of the installation.
#include "Host/registry/registry_database.h"
#include "Host/registry/registry_tree.h"
#include <functional>

namespace host {

/// Values of the database hide those of the layer below. Writes go only to the database. Values of the layer below can
/// be hidden but not deleted: AccessDenied.
class RegistryHive {
public:
    /// `below` returns the layer below, or null; it is called when needed.
    RegistryHive(std::filesystem::path file, std::function<RegistryTree*()> below)
        : own_(std::move(file)), below_(std::move(below)) {}

    bool hasKey(const KeyPath& key);
    /// Sorted by name, ignoring case.
    std::vector<std::string> subkeys(const KeyPath& key);
    /// Values of the layer below first, each in the order in which they were first set.
    std::vector<NamedRegValue> values(const KeyPath& key);
    std::optional<RegValue> value(const KeyPath& key, const std::string& name);

    bool isWritable() { return own_.isWritable(); }
    bool createKey(const KeyPath& key);
    void setValue(const KeyPath& key, const std::string& name, const RegValue& value) {
        own_.setValue(key, name, value);
    }
    bool deleteValue(const KeyPath& key, const std::string& name);
    bool deleteKey(const KeyPath& key);
    void atomically(const std::function<void()>& writes) { own_.atomically(writes); }

private:
    RegistryDatabase own_;
    std::function<RegistryTree*()> below_;
};

} // namespace host
