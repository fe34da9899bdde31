#pragma once
// The root keys and their stores.
#include "Host/registry/reg_text.h"
#include "Host/registry/registry_database.h"
#include <cstdint>
#include <optional>
#include <string_view>

namespace host {

enum class RegHiveId { User, Machine };

/// The location of a key in the stores. HKEY_CLASSES_ROOT is the machine's SOFTWARE\Classes.
struct RegPlace {
    RegHiveId hive = RegHiveId::User;
    KeyPath key;
};

/// Returns the location of a root key (HKEY_CURRENT_USER is 0x80000001); nothing for any other number.
std::optional<RegPlace> placeOfRegRoot(std::uint32_t root);

/// Returns the location of a full path that begins with the name of a root, "HKEY_CURRENT_USER\\Software" or
/// "HKCU\\Software", ignoring case. Nothing for an unknown root. RegFailure for an invalid path.
std::optional<RegPlace> placeOfRegKey(std::string_view wholePath);

/// Returns the path as written in .reg files: with the full name of its root and without empty names.
std::string withLongRootName(std::string_view wholePath);

/// Deletes a key and its subtree. Returns false if there is no such key.
template <class Store>
bool deleteRegTree(Store& store, const KeyPath& key) {
    for (const auto& name : store.subkeys(key)) deleteRegTree(store, key / name);
    return store.deleteKey(key);
}

/// Executes an instruction on the key at `key`. Keys are deleted with their subtree; deleting a missing key or value is
/// not an error.
template <class Store>
void applyRegInstruction(Store& store, const KeyPath& key, const RegInstruction& one) {
    requireValueName(one.name);
    switch (one.kind) {
    case RegInstruction::Kind::MakeKey: store.createKey(key); break;
    case RegInstruction::Kind::DeleteKey: deleteRegTree(store, key); break;
    case RegInstruction::Kind::SetValue: store.setValue(key, one.name, one.value); break;
    case RegInstruction::Kind::DeleteValue: store.deleteValue(key, one.name); break;
    }
}

} // namespace host
