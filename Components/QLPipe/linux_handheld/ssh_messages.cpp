#include "Components/QLPipe/linux_handheld/ssh_messages.h"
#include "Components/QLPipe/pipe_messages.h"

namespace qlpipe {

namespace {

using M = SshMessage;

constexpr fernwick::MessageInfo error(M number, std::string_view text, std::string_view meaning,
                                      std::string_view example, std::string_view remedy) {
    return {static_cast<std::int32_t>(number), true, text, meaning, example, remedy};
}

// number, text, meaning, example, remedy
constexpr fernwick::MessageInfo kSshMessages[] = {
    error(M::HostNotSet,
          "The address of the handheld is not set. Set it with: fernwick devices set %1 Host=ADDRESS, or for one "
          "project alone with: fernwick settings set PROJECT HandheldHost ADDRESS",
          "A Linux handheld is reached over the network; neither the project nor the user's settings say where it is.",
          "fernwick deploy Game.vbp --device LinuxHandheld-ARM",
          "fernwick devices set LinuxHandheld-ARM Host=192.168.1.20"),
    error(M::SettingInvalid, "The setting %1 of the Linux handheld is \"%2\": %3.",
          "A setting has a value that can't be meant.", "fernwick devices set LinuxHandheld-ARM Port=ssh",
          "Correct the setting."),
    error(M::HostNotFound,
          "No address is known for the handheld %1: %2. Check the setting Host, and whether this "
          "computer's network is on.",
          "The name could not be turned into an address.", "fernwick devices set LinuxHandheld-ARM Host=handhled",
          "Correct the name, or set the handheld's address in numbers."),
    error(M::NotConnected,
          "The handheld %1 can't be reached: %2. Check that it is switched on and in this network, "
          "that its SSH server runs, and the settings Host and Port.",
          "Nothing answers at this address and port.", "fernwick devices set LinuxHandheld-ARM Port=2222",
          "Switch the handheld on, start its SSH server (for instance: systemctl start ssh), or correct the settings."),
    error(M::NoAnswer,
          "The handheld %1 did not answer within %2 seconds while connecting. Check that it is awake and in "
          "reach of its network, then try again.",
          "The connection was taken, or the attempt went unanswered, and then nothing came.", "",
          "Wake the handheld; check that an SSH server stands at this port, and no other program."),
    error(M::HandshakeFailed, "No secure connection to %1: %2. Check that an SSH server stands at this port.",
          "What answers does not speak SSH, or no method that both sides know.",
          "fernwick devices set LinuxHandheld-ARM Port=80",
          "Correct the setting Port, or renew the handheld's SSH server."),

    error(
        M::HostKeyUnknown,
        "The handheld %1 is not known yet. Its key is %2 %3. Compare it with what this command prints on the handheld "
        "itself: ssh-keygen -lf /etc/ssh/ssh_host_%4_key.pub. If they are the same, make it known with: "
        "echo '%5' >> %6",
        "Nothing is sent to a device whose key was not checked: another one could stand at its address.", "",
        "Compare the fingerprints, then add the line to the file of known hosts."),
    error(M::HostKeyChanged,
          "The key of the handheld %1 is not the one that is known: now it is %2 %3. Either the handheld was set up "
          "anew, or another device answers in its place. Compare it with what this command prints on the handheld "
          "itself: ssh-keygen -lf /etc/ssh/ssh_host_%4_key.pub. Only if they are the same, forget the old key with: "
          "ssh-keygen -R '%7' -f %6 and make the new one known with: echo '%5' >> %6",
          "The device at this address has another key than before. Nothing was sent.", "",
          "Find out why the key changed before you accept it."),
    error(M::KnownHostsUnreadable, "The known hosts in %1 can't be read: %2. Nothing was sent to %3.",
          "Without this file the handheld's key can't be checked.", "", "Correct the file or the setting KnownHosts."),

    error(M::KeyFileMissing, "The key file %1 can't be read: %2. Check the setting KeyFile.",
          "The setting names a file that is not there or may not be read.",
          "fernwick devices set LinuxHandheld-ARM KeyFile=~/.ssh/id_handhled", "Correct the setting KeyFile."),
    error(M::KeyFileUnusable, "The file %1 holds no private key that can be used. Check the setting KeyFile.",
          "The file is not a private key of a kind that is known, perhaps its public half (.pub).",
          "fernwick devices set LinuxHandheld-ARM KeyFile=~/.ssh/id_ed25519.pub",
          "Name the private key, or make one with ssh-keygen -t ed25519."),
    error(M::KeyNeedsAgent,
          "The key file %1 has a passphrase, which is never asked for here: such keys come from the SSH agent, and "
          "%2. Add the key with: ssh-add %3 and try again.",
          "A key with a passphrase is used through the agent, so that the passphrase is given to no other program.", "",
          "eval \"$(ssh-agent)\" where no agent runs, then ssh-add and the key file."),
    error(M::KeysRefused,
          "The handheld %1 accepts none of the keys that were offered (%2). Add the public key to it "
          "with: ssh-copy-id -i KEY.pub -p %3 %4, or check the settings User and KeyFile.",
          "The user is not there, or none of his keys is in ~/.ssh/authorized_keys on the handheld.",
          "fernwick devices set LinuxHandheld-ARM User=root",
          "Put the public key on the handheld, or correct the settings."),
    error(M::KeyNotEnough,
          "The handheld %1 accepted the key but asks for more than it, which Fernwick can't give. Let "
          "keys suffice for the user %2 (AuthenticationMethods publickey in its sshd_config).",
          "The handheld's SSH server wants a second proof, such as a password.", "",
          "Set AuthenticationMethods publickey for this user."),

    error(M::ConnectionLost,
          "The connection to %1 broke off: %2. Check its power and network and try again; what was "
          "on the handheld before is kept.",
          "The handheld went away in the middle of the work.", "",
          "Try again. What an interrupted transfer left behind is put right when the handheld is next reached."),
    error(M::Stalled,
          "The handheld %1 has not answered for %2 seconds. Check its power and network and try again; what "
          "was on the handheld before is kept.",
          "The connection stands, but nothing moves.", "",
          "Wake the handheld, come nearer to its network, and try again."),
    error(M::TransferNotOffered,
          "The handheld %1 offers no file transfer (SFTP): %2. Install its SFTP server, on Debian "
          "the package openssh-sftp-server, and let sshd_config name it.",
          "The SSH server lets the user in but has no SFTP subsystem.", "",
          "Subsystem sftp internal-sftp in the handheld's /etc/ssh/sshd_config."),
    error(M::AnswerInvalid,
          "The handheld %1 gave an answer that makes no sense: %2. Check its SFTP server; shells that "
          "print something at every log-in (.bashrc) disturb it.",
          "What came is not SFTP of version 3.", "",
          "Silence what the log-in prints, or renew the handheld's SSH server."),

    error(M::AccessDenied,
          "The handheld does not let %4 %1 %2 (%3). Give this user the right to it, or set another Folder.",
          "The user may not write or read there.", "fernwick devices set LinuxHandheld-ARM Folder=/opt/fernwick",
          "chown the folder on the handheld to this user."),
    error(M::DeviceFull, "The handheld %1 is full: no room to %2 %3. Free space on it and try again.",
          "The file system of the handheld has no room left.", "", "Remove applications or files that are not needed."),
    error(M::OperationFailed, "The handheld %1 could not %2 %3: %4.",
          "The handheld's system reported an error for which SFTP has no name of its own.", "",
          "Look into the handheld's system log; check its disk and whether its file system is mounted read-only."),
    error(M::NotThere, "The handheld could not %1 %2: it is not there. Has another program removed it? Try again.",
          "A file or folder that was expected is gone.", "", "Try again."),
    error(M::LinkRefused,
          "%1 on the handheld is a link. Links are not followed, so that nothing outside of the folder is "
          "touched. Remove the link, or set Folder to where it points.",
          "A file or folder below the handheld's folder was replaced by a symbolic link.", "",
          "rm the link on the handheld."),
    error(M::NameTaken, "%1 is on the handheld already.", "A file was to be made where there is something.", "",
          "Remove it on the handheld, and see whether another program works in the same folder."),
    error(M::NotFolder, "%1 on the handheld is no folder.", "There is a file where a folder is needed.", "",
          "Remove it on the handheld, or set another Folder."),
    error(M::FileTooLarge, "%1 on the handheld is larger than 1 MiB and was not read.",
          "Files that are read whole are small lists; this one can't be one.", "",
          "Remove it on the handheld and try again."),
};

} // namespace

std::span<const fernwick::MessageInfo> sshMessages() { return kSshMessages; }

TransferError sshError(SshMessage message, std::initializer_list<std::string> values) {
    return transferError(static_cast<std::int32_t>(message), values);
}

std::string shellWord(const std::string& path) {
    std::string word;
    for (const char c : path) word += c == '\'' ? "'\\''" : std::string(1, c);
    return "'" + word + "'";
}

std::string saidByDevice(std::string_view text) {
    std::string shown{text.substr(0, 200)};
    for (char& c : shown)
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) c = '?';
    return shown;
}

} // namespace qlpipe
