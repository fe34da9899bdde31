#pragma once
// How a Linux handheld is reached: what the user and a project say, and what comes of it.
#include "Add-in/platform/host_project.h"
#include "Add-in/platform/registry.h"
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace qlpipe {

/// The settings as they are stored: text, "" for one that is not set.
struct LinuxHandheldSettings {
    /// Name or address.
    std::string Host;
    /// 1 to 65535; 22 where it is not set.
    std::string Port;
    /// The user of this computer where it is not set.
    std::string User;
    /// A private key; the agent's and the usual ones (~/.ssh/id_...) where it is not set.
    std::string KeyFile;
    /// Where applications and the runtime go; "fernwick" in the user's home folder on the handheld where it is not set.
    std::string Folder;
    /// The file with the keys of known hosts; ~/.ssh/known_hosts where it is not set.
    std::string KnownHosts;

    bool operator==(const LinuxHandheldSettings&) const = default;
};

/// One setting by the name under which it is stored and shown.
struct LinuxHandheldSetting {
    const char* name;
    std::string LinuxHandheldSettings::*value;
    /// What stands beside its field.
    const char* caption;
};
inline constexpr std::array<LinuxHandheldSetting, 6> kLinuxHandheldSettings{{
    {"Host", &LinuxHandheldSettings::Host, "Name or address:"},
    {"Port", &LinuxHandheldSettings::Port, "Port (22):"},
    {"User", &LinuxHandheldSettings::User, "User:"},
    {"KeyFile", &LinuxHandheldSettings::KeyFile, "Key file:"},
    {"Folder", &LinuxHandheldSettings::Folder, "Folder on the handheld (fernwick):"},
    {"KnownHosts", &LinuxHandheldSettings::KnownHosts, "File of known hosts:"},
}};

/// The section of the project file that holds a project's own settings.
inline constexpr char kLinuxHandheldSection[] = "Quinloft Linux Handheld";

/// What a project says for itself. Raises nothing: a project that says nothing has no settings of its own.
[[nodiscard]] LinuxHandheldSettings readProjectSettings(const basic::Ref<vbide::VBProject>& project);
/// Stores what differs from what the project says. Raises the host's errors.
void writeProjectSettings(const basic::Ref<vbide::VBProject>& project, const LinuxHandheldSettings& settings);

/// What the user says for all projects, kept under HKEY_CURRENT_USER, "Software\Quinloft\Devices\" and the key of the
/// design target.
[[nodiscard]] LinuxHandheldSettings readUserSettings(fernwick::Registry& registry, const std::string& deviceKey);
/// Deletes the values that are not set. Error 75 where the store can't be written.
void writeUserSettings(fernwick::Registry& registry, const std::string& deviceKey,
                       const LinuxHandheldSettings& settings);

/// A project's own settings go before the user's, each for itself.
[[nodiscard]] LinuxHandheldSettings layered(const LinuxHandheldSettings& project, const LinuxHandheldSettings& user);

/// Where to and how: every setting has its value.
struct SshTarget {
    std::string host;
    std::uint16_t port = 22;
    std::string user;
    /// Native path; "" for the agent's and the usual keys.
    std::string keyFile;
    /// On the handheld; one without a leading "/" lies in the user's home folder there.
    std::string folder;
    /// Native path.
    std::string knownHosts;
    /// Whether knownHosts is the user's own file, beside which the system's counts.
    bool usualKnownHosts = true;

    /// "host", or "host:port" where the port is not 22.
    [[nodiscard]] std::string address() const;
};

/// Fills in what is not set. Relative paths on this computer start in the user's home folder, as does "~/". Throws
/// TransferError for a host that is not set and for values that can't be meant.
[[nodiscard]] SshTarget sshTarget(const LinuxHandheldSettings& settings, const std::string& deviceKey);

} // namespace qlpipe
