#pragma once
// The registry: keys by handle, values by type.
#include "Add-in/platform/registry.h"
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace fernwick {

using RegistryBytes = std::vector<std::uint8_t>;
/// A value's data: nothing, text, bytes or a number.
using RegistryData = std::variant<std::monostate, std::string, RegistryBytes, std::int32_t>;

/// Result of a read. The data are empty unless the status is 0.
struct RegistryValue {
    std::int32_t status = ERROR_SUCCESS;
    std::uint32_t type = REG_NONE;
    RegistryData data;
    bool ok() const { return status == ERROR_SUCCESS; }
};
struct RegistryText {
    std::int32_t status = ERROR_SUCCESS;
    std::uint32_t type = REG_NONE;
    std::string text;
    bool ok() const { return status == ERROR_SUCCESS; }
};
struct NamedRegistryValue {
    std::string name;
    RegistryValue value;
};
struct NamedRegistryText {
    std::string name, text;
};

/// Data as a number. Error 13 for bytes and for a text that is not a number, 6 if out of range.
std::int32_t registryNumber(const RegistryData& data);

/// Handles are 32-bit; 0 means failure. No member raises an error.
class modRegistry2 {
public:
    explicit modRegistry2(Registry& registry) : registry_(registry) {}

    std::uint32_t OpenKey(std::uint32_t root, const std::string& subKey, std::uint32_t access);
    bool CloseKey(std::uint32_t key);
    /// Creates the key unless it exists; `key` is 0 if that fails.
    std::int32_t CreateKey(std::uint32_t root, const std::string& subKey, std::uint32_t& key);
    std::uint32_t OpenOrCreateKey(std::uint32_t root, const std::string& subKey, std::uint32_t access);

    /// Names of the subkeys; none after an error.
    std::optional<std::vector<std::string>> EnumKeys(std::uint32_t key);
    /// All values as texts; none after an error.
    std::optional<std::vector<NamedRegistryText>> EnumValues(std::uint32_t key);
    std::optional<std::vector<NamedRegistryValue>> EnumValuesRaw(std::uint32_t key);

    RegistryValue GetValue(std::uint32_t key, const std::string& name);
    /// Texts and numbers as text; "" for other types.
    RegistryText GetStringValue(std::uint32_t key, const std::string& name);
    /// Returns a status.
    std::int32_t SetValue(std::uint32_t key, const std::string& name, const RegistryData& data, std::uint32_t type);

    /// Decodes bytes as characters of the system code page.
    static std::string BytesToString(const RegistryBytes& bytes);
    /// Encodes characters in that page; missing ones become "?".
    static RegistryBytes StringToBytes(const std::string& text);

private:
    Registry& registry_;
};

/// A key that is closed at the end of its scope; 0 if it could not be opened.
class RegistryKey {
public:
    RegistryKey(modRegistry2& registry, std::uint32_t key) : registry_(registry), key_(key) {}
    RegistryKey(const RegistryKey&) = delete;
    ~RegistryKey() {
        if (key_) registry_.CloseKey(key_);
    }
    explicit operator bool() const { return key_ != 0; }
    std::uint32_t handle() const { return key_; }

private:
    modRegistry2& registry_;
    std::uint32_t key_;
};

} // namespace fernwick
