#pragma once
// The connection settings of a Linux handheld.
#include "Add-in/platform/host_project.h"
#include "Add-in/platform/registry.h"
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace qlpipe {

/// The settings as stored: texts, "" if not set.
struct LinuxHandheldSettings {
    /// Name or address.
    std::string Host;
    /// 1 to 65535; default 22.
    std::string Port;
    /// Default: the user of this computer.
    std::string User;
    /// A private key. Default: the agent's keys and ~/.ssh/id_*.
    std::string KeyFile;
    /// Folder for applications and the runtime. Default: "fernwick" in the user's home folder on the handheld.
    std::string Folder;
    /// The known hosts file. Default: ~/.ssh/known_hosts.
    std::string KnownHosts;

    bool operator==(const LinuxHandheldSettings&) const = default;
};

/// One setting with the name under which it is stored and shown.
struct LinuxHandheldSetting {
    const char* name;
    std::string LinuxHandheldSettings::*value;
    /// The label of its field.
    const char* caption;
    /// Whether a project may have it. Projects come from anywhere, so they must not choose which machine is reached, nor
    /// by whom or with which keys.
    bool isOfProjects = false;
};
inline constexpr std::array<LinuxHandheldSetting, 6> kLinuxHandheldSettings{{
    {"Host", &LinuxHandheldSettings::Host, "Name or address:"},
    {"Port", &LinuxHandheldSettings::Port, "Port (22):"},
    {"User", &LinuxHandheldSettings::User, "User:"},
    {"KeyFile", &LinuxHandheldSettings::KeyFile, "Key file:"},
    {"Folder", &LinuxHandheldSettings::Folder, "Folder on the handheld (fernwick):", true},
    {"KnownHosts", &LinuxHandheldSettings::KnownHosts, "File of known hosts:"},
}};

/// The section of the project file with the project's settings.
inline constexpr char kLinuxHandheldSection[] = "Quinloft Linux Handheld";

/// Reads the settings that a project may have. Does not raise errors: missing settings are empty.
[[nodiscard]] LinuxHandheldSettings readProjectSettings(const basic::Ref<vbide::VBProject>& project);
/// Returns the names of the other settings that the project file contains: "Host, Port".
[[nodiscard]] std::string ignoredProjectSettings(const basic::Ref<vbide::VBProject>& project);
/// Stores the settings that changed and that a project may have. Raises the host's errors.
void writeProjectSettings(const basic::Ref<vbide::VBProject>& project, const LinuxHandheldSettings& settings);

/// Reads the user's settings, stored in HKEY_CURRENT_USER under "Software\Quinloft\Devices\" and the key of the design
/// target.
[[nodiscard]] LinuxHandheldSettings readUserSettings(fernwick::Registry& registry, const std::string& deviceKey);
/// Stores the user's settings and deletes the values that are not set. Error 75 if the store cannot be written.
void writeUserSettings(fernwick::Registry& registry, const std::string& deviceKey,
                       const LinuxHandheldSettings& settings);

/// Returns the project's settings, with the user's where the project has none.
[[nodiscard]] LinuxHandheldSettings layered(const LinuxHandheldSettings& project, const LinuxHandheldSettings& user);

/// The complete settings of a connection.
struct SshTarget {
    std::string host;
    std::uint16_t port = 22;
    std::string user;
    /// Native path; "" for the agent's and the default keys.
    std::string keyFile;
    /// On the handheld. Without a leading "/" it is relative to the user's home folder.
    std::string folder;
    /// Native path.
    std::string knownHosts;
    /// Whether knownHosts is the default file. Then the system's file is used as well.
    bool usualKnownHosts = true;

    /// Returns "host", or "host:port" if the port is not 22.
    [[nodiscard]] std::string address() const;
};

/// Fills in defaults. Relative paths on this computer, and "~/", start in the user's home folder. Throws TransferError
/// for a missing host and for invalid values.
[[nodiscard]] SshTarget sshTarget(const LinuxHandheldSettings& settings, const std::string& deviceKey);

} // namespace qlpipe
