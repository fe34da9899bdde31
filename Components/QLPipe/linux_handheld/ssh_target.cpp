#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/linux_handheld_settings.h"
#include "Components/QLPipe/linux_handheld/user_account.h"
#include <algorithm>
#include <cctype>
#include <charconv>

namespace qlpipe {

namespace {

[[noreturn]] void refuseSetting(const char* name, const std::string& value, const char* why) {
    throw sshError(SshMessage::SettingInvalid, {{"setting", name}, {"value", value}, {"reason", why}});
}

/// Hosts and users appear in shell commands in messages, so characters with a meaning in a shell are refused.
std::string plainWord(const char* name, const std::string& value) {
    const auto plain = [](unsigned char c) {
        return c >= 0x80 || std::isalnum(c) || std::string_view{"-._:%"}.find(char(c)) != std::string_view::npos;
    };
    if (!std::ranges::all_of(value, plain))
        refuseSetting(name, value, "it contains a character that is not allowed in names");
    if (value.starts_with('-')) refuseSetting(name, value, "a name must not begin with -");
    return value;
}

std::uint16_t portOf(const std::string& text) {
    if (text.empty()) return 22;
    std::uint16_t port = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (problem != std::errc{} || end != text.data() + text.size() || port == 0)
        refuseSetting("Port", text, "a port must be a number from 1 to 65535");
    return port;
}

std::string localPath(const std::string& path) {
    if (path.empty() || path.starts_with('/')) return path;
    return homeFolder() + "/" + (path.starts_with("~/") ? path.substr(2) : path);
}

std::string remoteFolder(std::string folder) {
    if (folder.empty()) return "fernwick";
    if (folder.find('\0') != std::string::npos) refuseSetting("Folder", folder, "it contains a zero byte");
    if (folder.starts_with("~/")) folder.erase(0, 2);
    while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
    if (folder == "/" || folder == "." || folder == "~" || folder.empty())
        refuseSetting("Folder", folder, "Fernwick needs a separate folder");
    return folder;
}

} // namespace

std::string SshTarget::address() const { return port == 22 ? host : host + ":" + std::to_string(port); }

SshTarget sshTarget(const LinuxHandheldSettings& settings, const std::string& deviceKey) {
    if (settings.Host.empty()) throw sshError(SshMessage::HostNotSet, {{"device", deviceKey}});
    SshTarget target;
    target.host = plainWord("Host", settings.Host);
    target.port = portOf(settings.Port);
    target.user = plainWord("User", settings.User.empty() ? userName() : settings.User);
    target.keyFile = localPath(settings.KeyFile);
    if (target.user.empty()) refuseSetting("User", "", "your user name is not known on this computer");
    target.folder = remoteFolder(settings.Folder);
    target.usualKnownHosts = settings.KnownHosts.empty();
    target.knownHosts = localPath(target.usualKnownHosts ? "~/.ssh/known_hosts" : settings.KnownHosts);
    return target;
}

} // namespace qlpipe
