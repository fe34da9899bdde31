#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/base/pipe_messages.h"

namespace qlpipe {

namespace {

using M = SshMessage;

constexpr fernwick::MessageInfo error(M number, std::string_view text, std::string_view meaning,
                                      std::string_view example, std::string_view remedy) {
    return {static_cast<std::int32_t>(number), true, text, meaning, example, remedy};
}

// number, text, meaning, example, remedy
constexpr fernwick::MessageInfo kSshMessages[] = {
    error(
        M::HostNotSet,
        "The address of the handheld is not set. Set Host on the page Linux Handheld Settings of a project's settings, "
        "or with: fernwick devices set {device} Host=ADDRESS",
        "A Linux handheld is reached over the network. The user's settings do not contain its address.",
        "fernwick deploy Game.vbp --device LinuxHandheld-ARM",
        "fernwick devices set LinuxHandheld-ARM Host=192.168.1.20"),
    error(M::SettingInvalid, "Invalid value \"{value}\" for the Linux handheld setting {setting}: {reason}.",
          "The value cannot be used for this setting.", "fernwick devices set LinuxHandheld-ARM Port=ssh",
          "Correct the setting."),
    error(M::HostNotFound,
          "The address of the handheld {handheld} was not found: {reason}. Check the setting Host and this computer's "
          "network connection.",
          "The host name could not be resolved.", "fernwick devices set LinuxHandheld-ARM Host=handhled",
          "Correct the name, or use the handheld's numeric address."),
    error(M::NotConnected,
          "Cannot connect to the handheld {handheld}: {reason}. Check that it is switched on and connected to the "
          "network, that its SSH server is running, and the settings Host and Port.",
          "No SSH server answers at this address and port.", "fernwick devices set LinuxHandheld-ARM Port=2222",
          "Switch the handheld on, start its SSH server (for example: systemctl start ssh), or correct the settings."),
    error(
        M::NoAnswer,
        "The handheld {handheld} did not answer within {seconds} seconds while connecting. Check that it is awake and "
        "connected to the network, and the settings Host and Port, then try again.",
        "The connection attempt was not answered, or the server accepted it and then sent nothing.", "",
        "Wake the handheld, and check that the port belongs to an SSH server."),
    error(M::HandshakeFailed,
          "No secure connection to {handheld}: {reason}. Check that an SSH server is running at this port, and the "
          "setting Port.",
          "The server does not use SSH, or supports none of the available encryption methods.",
          "fernwick devices set LinuxHandheld-ARM Port=80",
          "Correct the setting Port, or update the handheld's SSH server."),

    error(M::HostKeyUnknown,
          "The handheld {handheld} is not known yet. Its key is {kind} {fingerprint}. Compare it with the output of "
          "this command on the handheld itself: ssh-keygen -lf /etc/ssh/ssh_host_{keyFile}_key.pub. If they are the "
          "same, accept the key with: echo '{line}' >> {knownHosts}",
          "Nothing is sent to a device whose key was not verified, because a different device could be using its "
          "address.",
          "", "Compare the fingerprints, then add the line to the known hosts file."),
    error(M::HostKeyChanged,
          "The key of the handheld {handheld} has changed: it is now {kind} {fingerprint}. Either the handheld was "
          "set up again, or another device answers at its address (settings Host and Port). Compare it with the output "
          "of this command on the "
          "handheld itself: ssh-keygen -lf /etc/ssh/ssh_host_{keyFile}_key.pub. Only if they are the same, remove the "
          "old key with: ssh-keygen -R '{host}' -f {knownHosts} and accept the new one with: echo '{line}' >> "
          "{knownHosts}",
          "The device at this address has a different key than before. Nothing was sent.", "",
          "Find out why the key changed before you accept it."),
    error(
        M::KnownHostsUnreadable,
        "The known hosts file {file} cannot be read: {reason}. Nothing was sent to {handheld}. Correct the file or the "
        "setting KnownHosts.",
        "The handheld's key cannot be verified without this file.", "", "Correct the file or the setting KnownHosts."),
    error(M::KnownHostsNotWritten,
          "The key was not stored in the known hosts file {file}: {reason}. Check the file and the setting KnownHosts.",
          "The known hosts file or its folder cannot be written.", "",
          "Correct the file's permissions or the setting KnownHosts."),

    error(M::KeyFileMissing, "The key file {file} cannot be read: {reason}. Check the setting KeyFile.",
          "The file named by the setting does not exist or is not readable.",
          "fernwick devices set LinuxHandheld-ARM KeyFile=~/.ssh/id_handhled", "Correct the setting KeyFile."),
    error(M::KeyFileUnusable, "The file {file} does not contain a usable private key. Check the setting KeyFile.",
          "The file is not a private key of a supported type. It may be the public key (.pub).",
          "fernwick devices set LinuxHandheld-ARM KeyFile=~/.ssh/id_ed25519.pub",
          "Name the private key, or create one with ssh-keygen -t ed25519."),
    error(M::KeyNeedsAgent,
          "The key file {file} (setting KeyFile) has a passphrase. Such keys are used only through the SSH agent, and "
          "{reason}. Add the "
          "key with: ssh-add {quotedFile} and try again.",
          "Fernwick never asks for a passphrase; the SSH agent holds keys that have one.", "",
          "If no agent is running, start it with: eval \"$(ssh-agent)\". Then add the key file with ssh-add."),
    error(M::KeysRefused,
          "The handheld {account} accepts none of the offered keys ({tried}). Add the public key to it with: "
          "ssh-copy-id -i KEY.pub -p {port} {login}, or check the settings User and KeyFile.",
          "The user does not exist on the handheld, or its ~/.ssh/authorized_keys contains none of the keys.",
          "fernwick devices set LinuxHandheld-ARM User=root",
          "Add the public key on the handheld, or correct the settings."),
    error(M::KeyNotEnough,
          "The handheld {handheld} accepted the key but requires a second authentication method, which is not "
          "supported. Allow the user {user} to log in with a key alone (AuthenticationMethods publickey in the "
          "handheld's sshd_config).",
          "The handheld's SSH server requires a second method, such as a password.", "",
          "Set AuthenticationMethods publickey for this user."),

    error(M::ConnectionLost,
          "The connection to {handheld} was lost: {reason}. Check its power and network and try again. The handheld's "
          "previous content is unchanged.",
          "The handheld disconnected during the operation.", "",
          "Try again. The next connection cleans up after an interrupted transfer."),
    error(M::Stalled,
          "The handheld {handheld} has not answered for {seconds} seconds. Check its power and network and try again. "
          "The handheld's previous content is unchanged.",
          "The connection is open, but no data arrives.", "",
          "Wake the handheld, move it closer to the network, and try again."),
    error(M::TransferNotOffered,
          "The handheld {handheld} does not offer file transfer (SFTP): {reason}. Install its SFTP server (on Debian, "
          "the package openssh-sftp-server) and enable it in sshd_config.",
          "The SSH server accepts the user but has no SFTP subsystem.", "",
          "Add this line to the handheld's /etc/ssh/sshd_config: Subsystem sftp internal-sftp."),
    error(M::AnswerInvalid,
          "The handheld {handheld} sent an invalid answer: {reason}. Check its SFTP server, and that the log-in script "
          "(.bashrc) prints nothing.",
          "The answer does not follow version 3 of the SFTP protocol.", "",
          "Remove output from the log-in script, or update the handheld's SSH server."),

    error(M::AccessDenied,
          "The user {user} may not {action} {path} on the handheld ({reason}). Grant the permission, or set a "
          "different Folder.",
          "The user has no write or read permission there.",
          "fernwick devices set LinuxHandheld-ARM Folder=/opt/fernwick",
          "Make the user the owner of the folder with chown."),
    error(M::DeviceFull,
          "The handheld {handheld} is full: not enough space to {action} {path}. Free some space and try again.",
          "The handheld's file system is full.", "", "Remove applications or files that are not needed."),
    error(M::OperationFailed, "The handheld {handheld} could not {action} {path}: {reason}.",
          "The handheld's operating system reported an error that SFTP does not specify further.", "",
          "Check the handheld's system log and disk, and whether its file system is mounted read-only."),
    error(M::NotThere,
          "The handheld could not {action} {path} because it does not exist. Try again if another program removed it.",
          "A file or folder was deleted during the transfer.", "", "Try again."),
    error(M::LinkRefused,
          "{path} on the handheld is a link. Links are not followed, so that nothing outside the folder is changed. "
          "Remove the link, or set Folder to its target.",
          "A file or folder below the handheld's folder was replaced by a symbolic link.", "",
          "Remove the link on the handheld."),
    error(M::NameTaken, "{path} already exists on the handheld.",
          "A file cannot be created because its name is already in use.", "",
          "Remove it on the handheld, and check whether another program uses the same folder."),
    error(M::NotFolder, "{path} on the handheld is not a folder. Remove it there, or set a different Folder.",
          "A file is in the place of a folder.", "", "Remove it on the handheld, or set a different Folder."),
    error(M::FileTooLarge, "{path} on the handheld is larger than 1 MiB and was not read.",
          "The file is one of Fernwick's own small lists and cannot be this large.", "",
          "Remove it on the handheld and try again."),
};

} // namespace

std::span<const fernwick::MessageInfo> sshMessages() { return kSshMessages; }

TransferError sshError(SshMessage message, MessageValues values) {
    return transferError(static_cast<std::int32_t>(message), values);
}

std::string shellWord(const std::string& path) {
    std::string word;
    for (const char c : path) word += c == '\'' ? "'\\''" : std::string(1, c);
    return "'" + word + "'";
}

std::string saidByDevice(std::string_view text) {
    constexpr std::size_t kLongest = 200;
    return std::string(text.substr(0, kLongest));
}

} // namespace qlpipe
