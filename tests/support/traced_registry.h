#pragma once
// A registry in memory.
#include "Add-in/platform/registry.h"
#include "Basic/case_folding.h"
#include <functional>
#include <map>
#include <string>

namespace test {

class MemoryRegistry : public fernwick::Registry {
public:
    void set(std::uint32_t root, const std::string& path, const std::string& name, const std::string& text,
             std::uint32_t type = fernwick::REG_SZ) {
        make(full(root, path))[name] = {type, type == fernwick::REG_SZ ? text + '\0' : text};
    }

    std::int32_t RegOpenKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t,
                              std::uint32_t& result) override {
        const auto path = full(key, subKey);
        if (keys_.count(path) == 0) return fernwick::ERROR_FILE_NOT_FOUND;
        open_[result = ++last_] = path;
        return fernwick::ERROR_SUCCESS;
    }
    std::int32_t RegCreateKeyEx(std::uint32_t key, const std::string& subKey, std::uint32_t access,
                                std::uint32_t& result, std::uint32_t& disposition) override {
        disposition = keys_.count(full(key, subKey)) ? 2 : 1;
        make(full(key, subKey));
        return RegOpenKeyEx(key, subKey, access, result);
    }
    std::int32_t RegCloseKey(std::uint32_t key) override {
        return open_.erase(key) ? fernwick::ERROR_SUCCESS : fernwick::ERROR_INVALID_HANDLE;
    }
    std::int32_t RegQueryInfoKey(std::uint32_t key, fernwick::RegistryKeyInfo& info) override {
        info = {};
        std::string name;
        while (RegEnumKeyEx(key, info.subKeys, name) == fernwick::ERROR_SUCCESS) {
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
        const auto parent = full(key, "") + "\\";
        for (const auto& [path, values] : keys_) {
            if (!basic::startsWithNoCase(path, parent)) continue;
            const auto rest = path.substr(parent.size());
            if (rest.find('\\') != std::string::npos || index-- > 0) continue;
            name = rest;
            return fernwick::ERROR_SUCCESS;
        }
        return fernwick::ERROR_NO_MORE_ITEMS;
    }
    std::int32_t RegEnumValue(std::uint32_t key, std::uint32_t index, std::string& name, std::uint32_t& type,
                              std::string& data) override {
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
        if (written) written(name);
        make(full(key, ""))[name] = {type, data};
        return fernwick::ERROR_SUCCESS;
    }
    std::int32_t RegDeleteValue(std::uint32_t key, const std::string& name) override {
        return keys_[full(key, "")].erase(name) ? fernwick::ERROR_SUCCESS : fernwick::ERROR_FILE_NOT_FOUND;
    }
    std::int32_t RegDeleteKey(std::uint32_t key, const std::string& subKey) override {
        return keys_.erase(full(key, subKey)) ? fernwick::ERROR_SUCCESS : fernwick::ERROR_FILE_NOT_FOUND;
    }
    /// Called with the name of each value that is stored.
    std::function<void(const std::string& name)> written;
    /// Number of handles that were not closed.
    std::size_t openKeys() const { return open_.size(); }

private:
    struct Value {
        std::uint32_t type = 0;
        std::string bytes;
    };
    using Values = std::map<std::string, Value, basic::NoCaseLess>;

    std::string full(std::uint32_t key, const std::string& subKey) const {
        const auto handle = open_.find(key);
        const std::string base = handle == open_.end() ? std::to_string(key) : handle->second;
        return subKey.empty() ? base : base + "\\" + subKey;
    }
    /// Creates the key and its parents.
    Values& make(const std::string& path) {
        for (auto slash = path.find('\\'); slash != std::string::npos; slash = path.find('\\', slash + 1))
            keys_[path.substr(0, slash)];
        return keys_[path];
    }

    std::map<std::string, Values, basic::NoCaseLess> keys_;
    std::map<std::uint32_t, std::string> open_;
    std::uint32_t last_ = 0;
};

} // namespace test
