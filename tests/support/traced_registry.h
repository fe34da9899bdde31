#pragma once
// A registry in memory. A handle allows only what it was opened for, as in the real one.
#include "Add-in/platform/registry.h"
#include "Basic/case_folding.h"
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace test {

class MemoryRegistry : public fernwick::Registry {
public:
    void set(std::uint32_t root, const std::string& path, const std::string& name, const std::string& text,
             std::uint32_t type = fernwick::REG_SZ) {
        make(full(root, path))[name] = {type, type == fernwick::REG_SZ ? text + '\0' : text};
    }

    std::int32_t RegOpenKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                              std::uint32_t& result) override {
        const auto path = full(key, subKey);
        if (keys_.count(path) == 0) return fernwick::ERROR_FILE_NOT_FOUND;
        open_[result = ++last_] = {path, access};
        requested.push_back(access);
        return fernwick::ERROR_SUCCESS;
    }
    /// Whether no key can be created.
    bool isReadOnly = false;
    std::int32_t RegCreateKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                                std::uint32_t& result, std::uint32_t& disposition) override {
        if (isReadOnly || !allows(key, kCreateSubKey)) return fernwick::ERROR_ACCESS_DENIED;
        disposition = keys_.count(full(key, subKey)) ? 2 : 1;
        make(full(key, subKey));
        return RegOpenKeyEx(key, subKey, access, result);
    }
    std::int32_t RegCloseKey(std::uint32_t key) override {
        return open_.erase(key) ? fernwick::ERROR_SUCCESS : fernwick::ERROR_INVALID_HANDLE;
    }
    std::int32_t RegQueryInfoKey(std::uint32_t key, fernwick::RegistryKeyInfo& info) override {
        if (!allows(key, fernwick::KEY_QUERY_VALUE)) return fernwick::ERROR_ACCESS_DENIED;
        info = {};
        std::string name;
        while (subKey(key, info.subKeys, name)) {
            ++info.subKeys;
            info.longestSubKeyName = std::max(info.longestSubKeyName, std::uint32_t(name.size()));
        }
        for (const auto& [value, data] : keys_[full(key, "")]) {
            ++info.values;
            info.longestValueName = std::max(info.longestValueName, std::uint32_t(value.size()));
            info.longestValueData = std::max(info.longestValueData, std::uint32_t(data.bytes.size()));
        }
        return fernwick::ERROR_SUCCESS;
    }
    std::int32_t RegEnumKeyEx(std::uint32_t key, std::uint32_t index, std::string& name) override {
        if (!allows(key, kEnumerateSubKeys)) return fernwick::ERROR_ACCESS_DENIED;
        return subKey(key, index, name) ? fernwick::ERROR_SUCCESS : fernwick::ERROR_NO_MORE_ITEMS;
    }
    std::int32_t RegEnumValue(std::uint32_t key, std::uint32_t index, std::string& name, std::uint32_t& type,
                              std::string& data) override {
        if (!allows(key, fernwick::KEY_QUERY_VALUE)) return fernwick::ERROR_ACCESS_DENIED;
        const auto& values = keys_[full(key, "")];
        if (index >= values.size()) return fernwick::ERROR_NO_MORE_ITEMS;
        const auto at = std::next(values.begin(), index);
        name = at->first;
        type = at->second.type;
        data = at->second.bytes;
        return fernwick::ERROR_SUCCESS;
    }
    std::int32_t RegQueryValueEx(std::uint32_t key, const std::string& name, std::uint32_t& type, std::string& data,
                                 std::uint32_t& length) override {
        if (!allows(key, fernwick::KEY_QUERY_VALUE)) return fernwick::ERROR_ACCESS_DENIED;
        const auto& values = keys_[full(key, "")];
        const auto value = values.find(name);
        if (value == values.end()) return fernwick::ERROR_FILE_NOT_FOUND;
        type = value->second.type;
        length = std::uint32_t(value->second.bytes.size());
        if (data.size() < length) return fernwick::ERROR_MORE_DATA;
        data.replace(0, length, value->second.bytes);
        return fernwick::ERROR_SUCCESS;
    }
    std::int32_t RegSetValueEx(std::uint32_t key, const std::string& name, std::uint32_t type,
                               const std::string& data) override {
        if (!allows(key, fernwick::KEY_SET_VALUE)) return fernwick::ERROR_ACCESS_DENIED;
        if (written) written(name);
        make(full(key, ""))[name] = {type, data};
        return fernwick::ERROR_SUCCESS;
    }
    std::int32_t RegDeleteValue(std::uint32_t key, const std::string& name) override {
        if (!allows(key, fernwick::KEY_SET_VALUE)) return fernwick::ERROR_ACCESS_DENIED;
        return keys_[full(key, "")].erase(name) ? fernwick::ERROR_SUCCESS : fernwick::ERROR_FILE_NOT_FOUND;
    }
    std::int32_t RegDeleteKey(std::uint32_t key, const std::string& subKey) override {
        return keys_.erase(full(key, subKey)) ? fernwick::ERROR_SUCCESS : fernwick::ERROR_FILE_NOT_FOUND;
    }
    /// Called with the name of each value that is stored.
    std::function<void(const std::string& name)> written;
    /// The access that was requested for each key that was opened, in order.
    std::vector<std::uint32_t> requested;
    /// Number of handles that were not closed.
    std::size_t openKeys() const { return open_.size(); }

private:
    static constexpr std::uint32_t kCreateSubKey = 4, kEnumerateSubKeys = 8;

    struct Value {
        std::uint32_t type = 0;
        std::string bytes;
    };
    using Values = std::map<std::string, Value, basic::NoCaseLess>;

    std::string full(std::uint32_t key, const std::string& subKey) const {
        const auto handle = open_.find(key);
        const std::string base = handle == open_.end() ? std::to_string(key) : handle->second.path;
        return subKey.empty() ? base : base + "\\" + subKey;
    }
    /// The roots allow everything.
    bool allows(std::uint32_t key, std::uint32_t right) const {
        const auto handle = open_.find(key);
        return handle == open_.end() || (handle->second.access & right) != 0;
    }
    bool subKey(std::uint32_t key, std::uint32_t index, std::string& name) const {
        const auto parent = full(key, "") + "\\";
        for (const auto& [path, values] : keys_) {
            if (!basic::startsWithNoCase(path, parent)) continue;
            const auto rest = path.substr(parent.size());
            if (rest.find('\\') != std::string::npos || index-- > 0) continue;
            name = rest;
            return true;
        }
        return false;
    }
    /// Creates the key and its parents.
    Values& make(const std::string& path) {
        for (auto slash = path.find('\\'); slash != std::string::npos; slash = path.find('\\', slash + 1))
            keys_[path.substr(0, slash)];
        return keys_[path];
    }

    std::map<std::string, Values, basic::NoCaseLess> keys_;
    struct Open {
        std::string path;
        std::uint32_t access = 0;
    };
    std::map<std::uint32_t, Open> open_;
    std::uint32_t last_ = 0;
};

} // namespace test
