#pragma once
// The root keys, and which store serves them.
#include "Host/registry/reg_text.h"
#include "Host/registry/registry_database.h"
#include <cstdint>
#include <optional>
#include <string_view>

namespace host {

enum class RegHiveId { User, Machine };

/// A key's place in the stores. HKEY_CLASSES_ROOT is the machine's SOFTWARE\Classes.
struct RegPlace {
    RegHiveId hive = RegHiveId::User;
    KeyPath key;
};

/// The place of a root key's number (HKEY_CURRENT_USER is 0x80000001); nothing for a number that is no root.
std::optional<RegPlace> placeOfRegRoot(std::uint32_t root);

/// The place of a whole path that begins with a root's name, as "HKEY_CURRENT_USER\\Software" or "HKCU\\Software",
/// letter case ignored. Nothing for an unknown root. RegFailure for a path that no key can have.
std::optional<RegPlace> placeOfRegKey(std::string_view wholePath);

/// The path with the root's whole name and without empty names: what a .reg file holds.
std::string withLongRootName(std::string_view wholePath);

/// Does to `store` what `one` says, with its key at `key`. Deleting what is not there is no error; a key is deleted with
/// everything below it.
template <class Store>
void applyRegInstruction(Store& store, const KeyPath& key, const RegInstruction& one);

/// Deletes a key and everything below it. False when there is no such key.
template <class Store>
bool deleteRegTree(Store& store, const KeyPath& key) {
    for (const auto& name : store.subkeys(key)) deleteRegTree(store, key / name);
    return store.deleteKey(key);
}

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
