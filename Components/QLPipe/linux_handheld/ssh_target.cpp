#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include "Components/QLPipe/linux_handheld/user_account.h"
#include <algorithm>
#include <cctype>
#include <charconv>

namespace qlpipe {

namespace {

[[noreturn]] void refuseSetting(const char* name, const std::string& value, const std::string& why) {
    throw sshError(SshMessage::SettingInvalid, {{"setting", name}, {"value", shortened(value)}, {"reason", why}});
}

void demandValue(const char* name, const std::string& value,
                 std::string (*problem)(const std::string&, const TargetLimits&)) {
    if (const auto why = problem(value, {}); !why.empty()) refuseSetting(name, value, why);
}

std::uint16_t portOf(const std::string& text) {
    std::uint16_t port = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), port);
    return problem == std::errc{} && end == text.data() + text.size() ? port : std::uint16_t(0);
}

std::string localPath(const std::string& path) {
    if (path.empty() || path.starts_with('/')) return path;
    return homeFolder() + "/" + (path.starts_with("~/") ? path.substr(2) : path);
}

std::string remoteFolder(std::string folder) {
    if (folder.empty()) return "fernwick";
    if (folder.starts_with("~/")) folder.erase(0, 2);
    while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
    return folder;
}

} // namespace

/// Hosts and users appear in shell commands in messages, so characters with a meaning in a shell are refused.
std::string hostProblem(const std::string& value, const TargetLimits&) {
    const auto isPlain = [](unsigned char c) {
        return c >= 0x80 || std::isalnum(c) || std::string_view{"-._:%"}.find(char(c)) != std::string_view::npos;
    };
    if (!std::ranges::all_of(value, isPlain)) return "it contains a character that is not allowed in names";
    return value.starts_with('-') ? "a name must not begin with -" : "";
}

std::string portProblem(const std::string& value, const TargetLimits&) {
    return value.empty() || portOf(value) != 0 ? "" : "a port must be a number from 1 to 65535";
}

std::string folderProblem(const std::string& value, const TargetLimits&) {
    if (value.find('\0') != std::string::npos) return "it contains a zero byte";
    const auto folder = remoteFolder(value);
    const bool isWhole = folder == "/" || folder == "." || folder == "~" || folder.empty();
    return isWhole ? "Fernwick needs a separate folder" : "";
}

std::string SshTarget::address() const { return port == 22 ? host : host + ":" + std::to_string(port); }

SshTarget sshTarget(const LinuxHandheldSettings& settings, const std::string& deviceKey) {
    if (settings.Host.empty()) throw sshError(SshMessage::HostNotSet, {{"device", deviceKey}});
    SshTarget target;
    demandValue("Host", settings.Host, hostProblem);
    demandValue("Port", settings.Port, portProblem);
    demandValue("Folder", settings.Folder, folderProblem);
    target.host = settings.Host;
    if (!settings.Port.empty()) target.port = portOf(settings.Port);
    target.user = settings.User.empty() ? userName() : settings.User;
    if (target.user.empty()) refuseSetting("User", "", "your user name is not known on this computer");
    demandValue("User", target.user, hostProblem);
    target.keyFile = localPath(settings.KeyFile);
    target.folder = remoteFolder(settings.Folder);
    target.usualKnownHosts = settings.KnownHosts.empty();
    target.knownHosts = localPath(target.usualKnownHosts ? "~/.ssh/known_hosts" : settings.KnownHosts);
    return target;
}

} // namespace qlpipe
