#pragma once
// A store as its users see it: a database over a layer of values that came with the installation.
#include "Host/registry/registry_database.h"
#include <functional>

namespace host {

/// What the database holds hides what lies below it; writes go to the database only. What lies below can be hidden by
/// a value of the database but not deleted: AccessDenied.
class RegistryHive {
public:
    /// `below` is asked when it is needed; it gives null for no layer.
    RegistryHive(std::filesystem::path file, std::function<RegistryDatabase*()> below)
        : own_(std::move(file)), below_(std::move(below)) {}

    bool hasKey(const KeyPath& key);
    /// In the order of their names, letter case ignored.
    std::vector<std::string> subkeys(const KeyPath& key);
    /// Those from below first, each in the order in which they were first set.
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
    std::function<RegistryDatabase*()> below_;
};

} // namespace host
