#pragma once
// The registry as the add-in uses it: keys by handle, values by type.
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

/// What a read answers. Without status 0 the data are empty.
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

/// Data as a number. Errors 13 for a text that is none or for bytes, 6 outside of the range.
std::int32_t registryNumber(const RegistryData& data);

/// Handles are 32-bit; 0 means failure. Nothing here raises an error.
class modRegistry2 {
public:
    explicit modRegistry2(Registry& registry) : registry_(registry) {}

    std::uint32_t OpenKey(std::uint32_t root, const std::string& subKey, std::uint32_t access);
    bool CloseKey(std::uint32_t key);
    /// Makes the key where it does not stand yet; `key` is 0 unless the status is.
    std::int32_t CreateKey(std::uint32_t root, const std::string& subKey, std::uint32_t& key);
    std::uint32_t OpenOrCreateKey(std::uint32_t root, const std::string& subKey, std::uint32_t access);

    /// Names of the subkeys; nothing on any error.
    std::optional<std::vector<std::string>> EnumKeys(std::uint32_t key);
    /// All values as texts; nothing on any error.
    std::optional<std::vector<NamedRegistryText>> EnumValues(std::uint32_t key);
    std::optional<std::vector<NamedRegistryValue>> EnumValuesRaw(std::uint32_t key);

    RegistryValue GetValue(std::uint32_t key, const std::string& name);
    /// Texts and numbers as text; any other type gives an empty one.
    RegistryText GetStringValue(std::uint32_t key, const std::string& name);
    /// Answers a status.
    std::int32_t SetValue(std::uint32_t key, const std::string& name, const RegistryData& data, std::uint32_t type);

    /// Each byte's character in the system code page.
    static std::string BytesToString(const RegistryBytes& bytes);
    /// Each character's code in that page, the code of "?" for a character that it lacks.
    static RegistryBytes StringToBytes(const std::string& text);

private:
    Registry& registry_;
};

/// A key that is closed where it goes out of scope; 0 for one that did not open.
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
