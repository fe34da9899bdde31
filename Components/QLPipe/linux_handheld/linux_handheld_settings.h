#pragma once
// The connection settings of a Linux handheld.
#include "Add-in/platform/host_project.h"
#include "Add-in/platform/registry.h"
#include "Components/QLPipe/settings/application_settings.h"
#include <cstdint>
#include <string>

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

// Why a value of a setting cannot be used, or "". An empty value is good.
std::string hostProblem(const std::string& value, const TargetLimits&);
std::string portProblem(const std::string& value, const TargetLimits&);
std::string folderProblem(const std::string& value, const TargetLimits&);

inline constexpr PipeSetting kLinuxHandheldRows[] = {
    versionRow("HandheldVersion"),
    memoryLimitRow("HandheldMemoryLimit"),
    orientationRow("HandheldOrientation"),
    {"HandheldArguments",
     "Arguments",
     "&Arguments:",
     "command line with which the application starts",
     "at most 1,024 bytes",
     "none",
     "the manifest passes it to the runtime",
     nullptr,
     {},
     &ApplicationSettings::Arguments},
    {"HandheldHost",
     "Host",
     "&Host:",
     "the handheld in your network",
     "its name or address",
     "none, but a transfer needs it",
     "all your projects for this device use it",
     hostProblem,
     {},
     nullptr,
     &LinuxHandheldSettings::Host,
     true},
    {"HandheldPort",
     "Port",
     "&Port:",
     "port of the SSH server on the handheld",
     "a number from 1 to 65535",
     "22",
     "all your projects for this device use it",
     portProblem,
     {},
     nullptr,
     &LinuxHandheldSettings::Port,
     true},
    {"HandheldUser",
     "User",
     "&User:",
     "your user on the handheld",
     "a user name",
     "your user name on this computer",
     "all your projects for this device use it",
     hostProblem,
     {},
     nullptr,
     &LinuxHandheldSettings::User,
     true},
    {"HandheldKeyFile",
     "KeyFile",
     "&Key file:",
     "file with your private key",
     "a path on this computer",
     "the keys of the SSH agent and ~/.ssh/id_*",
     "all your projects for this device use it",
     nullptr,
     {},
     nullptr,
     &LinuxHandheldSettings::KeyFile,
     true},
    {"HandheldFolder",
     "Folder",
     "&Folder:",
     "folder on the handheld for applications and the runtime",
     "a path there, also one relative to the user's home folder",
     "your own setting Folder, or fernwick in the home folder",
     "transfers of this project use it",
     folderProblem,
     {},
     nullptr,
     &LinuxHandheldSettings::Folder},
    {"HandheldKnownHosts",
     "KnownHosts",
     "K&nown hosts:",
     "file with the keys of the handhelds that you trust",
     "a path on this computer",
     "~/.ssh/known_hosts",
     "all your projects for this device use it",
     nullptr,
     {},
     nullptr,
     &LinuxHandheldSettings::KnownHosts,
     true},
};
inline constexpr PipeSettings kLinuxHandheldSettings{"Linux Handheld Settings", "Quinloft Linux Handheld",
                                                     kLinuxHandheldRows};
/// The rows of a connection. The user has a value for each of them, also for the folder.
inline constexpr std::span<const PipeSetting> kConnectionRows = kLinuxHandheldSettings.rows.subspan(4);

/// Reads the settings that a project may have. Does not raise errors: missing settings are empty.
[[nodiscard]] LinuxHandheldSettings readProjectSettings(const basic::Ref<vbide::VBProject>& project);
/// Returns the names of the other settings that the project file contains: "Host, Port".
[[nodiscard]] std::string ignoredProjectSettings(const basic::Ref<vbide::VBProject>& project);

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
