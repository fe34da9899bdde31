#include "Add-in/core/modRegistry2.h"
#include "Basic/code_page.h"
#include "Basic/conversions.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"

namespace fernwick {

namespace {

constexpr std::size_t kNumberLength = 4;

bool isTextType(std::uint32_t type) { return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ; }
bool isNumberType(std::uint32_t type) { return type == REG_DWORD || type == REG_DWORD_BIG_ENDIAN; }

/// Interprets the four bytes as little-endian, even for big-endian numbers: VB does not swap them.
std::int32_t numberFromBytes(const std::string& bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = std::min(bytes.size(), kNumberLength); i-- > 0;) number = number << 8 | std::uint8_t(bytes[i]);
    return std::int32_t(number);
}

std::string bytesFromNumber(std::int32_t number) {
    std::string bytes;
    for (std::size_t i = 0; i < kNumberLength; ++i) bytes += char(std::uint32_t(number) >> (8 * i) & 0xFF);
    return bytes;
}

RegistryData enumeratedData(std::uint32_t type, std::string data) {
    if (type == REG_BINARY) return RegistryBytes(data.begin(), data.end());
    if (!isTextType(type)) return numberFromBytes(data);
    if (!data.empty() && data.back() == '\0') data.pop_back();
    return data;
}

std::string registryText(const RegistryData& data) {
    if (const auto* text = std::get_if<std::string>(&data)) return *text;
    if (const auto* bytes = std::get_if<RegistryBytes>(&data)) return modRegistry2::BytesToString(*bytes);
    if (const auto* number = std::get_if<std::int32_t>(&data)) return std::to_string(*number);
    return {};
}

std::string bytesToStore(const RegistryData& data, std::uint32_t type) {
    if (isNumberType(type)) return bytesFromNumber(registryNumber(data));
    if (isTextType(type)) return registryText(data) + '\0';
    if (const auto* bytes = std::get_if<RegistryBytes>(&data)) return {bytes->begin(), bytes->end()};
    if (const auto* number = std::get_if<std::int32_t>(&data)) return bytesFromNumber(*number);
    return registryText(data);
}

} // namespace

std::int32_t registryNumber(const RegistryData& data) {
    if (const auto* number = std::get_if<std::int32_t>(&data)) return *number;
    if (const auto* text = std::get_if<std::string>(&data)) return basic::CLng(*text);
    if (std::holds_alternative<RegistryBytes>(data)) throw basic::RuntimeError(basic::kTypeMismatch);
    return 0;
}

RegistryValue modRegistry2::GetValue(std::uint32_t key, const std::string& name) {
    RegistryValue value;
    std::string data;
    std::uint32_t length = 0;
    value.status = registry_.RegQueryValueEx(key, name, value.type, data, length);
    if (value.status == ERROR_SUCCESS) value.data = std::string{};
    if (value.status != ERROR_MORE_DATA) return value;

    if (!isTextType(value.type) && !isNumberType(value.type) && value.type != REG_BINARY) return value;
    data.assign(isNumberType(value.type) ? kNumberLength : length, '?');
    value.status = registry_.RegQueryValueEx(key, name, value.type, data, length);
    if (!value.ok()) return value;

    data.resize(std::min<std::size_t>(data.size(), length));
    if (isNumberType(value.type))
        value.data = numberFromBytes(data);
    else if (value.type == REG_BINARY)
        value.data = RegistryBytes(data.begin(), data.end());
    else
        value.data = data.substr(0, data.empty() ? 0 : data.size() - 1);
    return value;
}

RegistryText modRegistry2::GetStringValue(std::uint32_t key, const std::string& name) {
    const auto value = GetValue(key, name);
    return {value.status, value.type, registryText(value.data)};
}

std::optional<std::vector<NamedRegistryValue>> modRegistry2::EnumValuesRaw(std::uint32_t key) {
    RegistryKeyInfo info;
    if (registry_.RegQueryInfoKey(key, info) != ERROR_SUCCESS) return std::nullopt;
    std::vector<NamedRegistryValue> values(info.values);
    for (std::uint32_t i = 0; i < info.values; ++i) {
        auto& [name, value] = values[i];
        std::string data;
        value.status = registry_.RegEnumValue(key, i, name, value.type, data);
        if (!value.ok()) return std::nullopt;
        value.data = enumeratedData(value.type, std::move(data));
    }
    return values;
}

std::optional<std::vector<NamedRegistryText>> modRegistry2::EnumValues(std::uint32_t key) {
    const auto values = EnumValuesRaw(key);
    if (!values) return std::nullopt;
    std::vector<NamedRegistryText> texts;
    for (const auto& [name, value] : *values) texts.push_back({name, registryText(value.data)});
    return texts;
}

std::int32_t modRegistry2::SetValue(std::uint32_t key, const std::string& name, const RegistryData& data,
                                    std::uint32_t type) {
    return registry_.RegSetValueEx(key, name, type, bytesToStore(data, type));
}

std::string modRegistry2::BytesToString(const RegistryBytes& bytes) {
    return basic::CodePage::windows1252().decode(std::string(bytes.begin(), bytes.end()));
}

RegistryBytes modRegistry2::StringToBytes(const std::string& text) {
    RegistryBytes bytes;
    for (basic::Long at = 1, count = basic::Len(text); at <= count; ++at)
        bytes.push_back(std::uint8_t(basic::Asc(basic::Mid(text, at, 1))));
    return bytes;
}

} // namespace fernwick
