#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include <utility>

namespace qlpipe {

namespace {

/// Owns a registry key and closes it. 0 if it could not be opened.
class OpenKey {
public:
    OpenKey(fernwick::Registry& registry, std::uint32_t key) : registry_(registry), key_(key) {}
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() {
        if (key_) registry_.RegCloseKey(key_);
    }

    /// Returns "" for a missing value or one that is not a string.
    std::string text(const char* name) const {
        std::uint32_t type = 0, length = 0;
        std::string data;
        if (!key_) return {};
        const auto status = registry_.RegQueryValueEx(key_, name, type, data, length);
        if (status != fernwick::ERROR_SUCCESS && status != fernwick::ERROR_MORE_DATA) return {};
        data.resize(length);
        if (registry_.RegQueryValueEx(key_, name, type, data, length) != fernwick::ERROR_SUCCESS) return {};
        return type == fernwick::REG_SZ ? data.substr(0, data.find('\0')) : std::string{};
    }

    bool store(const char* name, const std::string& text) const {
        if (!text.empty())
            return registry_.RegSetValueEx(key_, name, fernwick::REG_SZ, text + '\0') == fernwick::ERROR_SUCCESS;
        const auto status = registry_.RegDeleteValue(key_, name);
        return status == fernwick::ERROR_SUCCESS || status == fernwick::ERROR_FILE_NOT_FOUND;
    }

    explicit operator bool() const { return key_ != 0; }

private:
    fernwick::Registry& registry_;
    std::uint32_t key_;
};

std::string deviceSettingsKey(const std::string& deviceKey) { return "Software\\Quinloft\\Devices\\" + deviceKey; }

constexpr int kPathFileAccessError = 75;

} // namespace

LinuxHandheldSettings readProjectSettings(const basic::Ref<vbide::VBProject>& project) {
    LinuxHandheldSettings settings;
    const auto values = readProjectValues(kLinuxHandheldSettings, project);
    for (std::size_t i = 0; i < values.size(); ++i)
        if (const auto member = kLinuxHandheldRows[i].connection) settings.*member = values[i];
    return settings;
}

std::string ignoredProjectSettings(const basic::Ref<vbide::VBProject>& project) {
    std::string names;
    for (const auto* setting : ignoredInProject(kLinuxHandheldSettings, project))
        names += (names.empty() ? "" : ", ") + std::string(setting->key);
    return names;
}

LinuxHandheldSettings readUserSettings(fernwick::Registry& registry, const std::string& deviceKey) {
    std::uint32_t handle = 0;
    if (registry.RegOpenKeyEx(fernwick::HKEY_CURRENT_USER, deviceSettingsKey(deviceKey), fernwick::KEY_QUERY_VALUE,
                              handle) != fernwick::ERROR_SUCCESS)
        handle = 0;
    const OpenKey key{registry, handle};
    LinuxHandheldSettings settings;
    for (const auto& row : kConnectionRows) settings.*row.connection = key.text(row.key);
    return settings;
}

void writeUserSettings(fernwick::Registry& registry, const std::string& deviceKey,
                       const LinuxHandheldSettings& settings) {
    std::uint32_t handle = 0, disposition = 0;
    if (registry.RegCreateKeyEx(fernwick::HKEY_CURRENT_USER, deviceSettingsKey(deviceKey), fernwick::KEY_ALL_ACCESS,
                                handle, disposition) != fernwick::ERROR_SUCCESS)
        handle = 0;
    const OpenKey key{registry, handle};
    for (const auto& row : kConnectionRows)
        if (!key || !key.store(row.key, settings.*row.connection)) throw basic::RuntimeError(kPathFileAccessError);
}

LinuxHandheldSettings layered(const LinuxHandheldSettings& project, const LinuxHandheldSettings& user) {
    auto settings = user;
    for (const auto& row : kConnectionRows)
        if (!(project.*row.connection).empty()) settings.*row.connection = project.*row.connection;
    return settings;
}

} // namespace qlpipe
