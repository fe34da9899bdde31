#pragma once
// Registry keys in memory.
#include "Host/registry/key_path.h"
#include "Host/registry/reg_value.h"
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// Keys with their values. Names are looked up ignoring case and keep their spelling.
class RegistryTree {
public:
    bool hasKey(const KeyPath& key) const { return find(key); }
    /// Sorted by name, ignoring case.
    std::vector<std::string> subkeys(const KeyPath& key) const;
    /// In the order in which they were first set.
    std::vector<NamedRegValue> values(const KeyPath& key) const;
    std::optional<RegValue> value(const KeyPath& key, const std::string& name) const;

    /// Creates the key and its ancestors. Returns true if it did not exist.
    bool createKey(const KeyPath& key);
    /// Sets a value. Creates the key if needed.
    void setValue(const KeyPath& key, const std::string& name, const RegValue& value);
    /// Returns false if there is no such value.
    bool deleteValue(const KeyPath& key, const std::string& name);
    /// Deletes a key without subkeys and its values. Returns false if there is no such key; RegFailure AccessDenied for
    /// the root or a key with subkeys.
    bool deleteKey(const KeyPath& key);

private:
    struct Value {
        std::uint64_t position = 0;
        NamedRegValue named;
    };
    struct Key {
        std::string name;
        std::map<std::string, std::unique_ptr<Key>> subkeys; ///< by folded name
        std::map<std::string, Value> values;                 ///< by folded name
    };
    Key* find(const KeyPath& key) const;
    Key& make(const KeyPath& key);

    std::unique_ptr<Key> root_ = std::make_unique<Key>();
    std::uint64_t lastPosition_ = 0;
};

} // namespace host
