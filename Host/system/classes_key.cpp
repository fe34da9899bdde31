#include "Host/system/classes_key.h"

namespace host {

ClassesKey::ClassesKey(fernwick::Registry& registry, const std::string& path) : registry_(registry) {
    const auto status = registry.RegOpenKeyEx(fernwick::HKEY_CLASSES_ROOT, path, fernwick::KEY_READ, key_);
    if (status != fernwick::ERROR_SUCCESS) key_ = 0;
}

ClassesKey::~ClassesKey() {
    if (key_) registry_.RegCloseKey(key_);
}

std::optional<std::string> ClassesKey::defaultText() const {
    std::uint32_t type = 0, length = 0;
    std::string data;
    registry_.RegQueryValueEx(key_, "", type, data, length);
    data.resize(length);
    if (registry_.RegQueryValueEx(key_, "", type, data, length) != fernwick::ERROR_SUCCESS) return {};
    if (type != fernwick::REG_SZ && type != fernwick::REG_EXPAND_SZ) return {};
    return data.substr(0, data.find('\0'));
}

std::vector<std::string> ClassesKey::subKeys() const {
    std::vector<std::string> names;
    std::string name;
    for (std::uint32_t i = 0; registry_.RegEnumKeyEx(key_, i, name) == fernwick::ERROR_SUCCESS; ++i)
        names.push_back(name);
    return names;
}

std::optional<std::string> classesText(fernwick::Registry& registry, const std::string& path) {
    const ClassesKey key(registry, path);
    return key ? key.defaultText() : std::nullopt;
}

} // namespace host
