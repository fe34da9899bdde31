#pragma once
// The storage of a Linux handheld.
#include "Components/QLPipe/device_storage.h"
#include "Components/QLPipe/linux_handheld/sftp_client.h"

namespace qlpipe {

/// What begins so is ours alone and never listed.
inline constexpr std::string_view kOwnPrefix = ".fernwick-";

/// Below one folder of the handheld. Names of our own there keep interruptions and other computers from doing harm:
///
/// - A file is written as .fernwick-part-HASH and gets its name when it is closed.
/// - What is replaced goes to the folder .fernwick-replaced under its name, "/" as "%2F", until the new one stands. What
///   the next connection finds there goes back to its place if that is empty, and else away.
/// - .fernwick-owner-NUMBER stands as long as a transfer works. Who begins to work removes those of others; who finds his
///   own gone has lost the device to a later transfer, and stops before he mixes with it.
class SshStorage final : public DeviceStorage {
public:
    /// `lock` is held as long as the storage.
    explicit SshStorage(const SshTarget& target, const SshTimeouts& timeouts = {},
                        FileDescriptor lock = FileDescriptor{});
    ~SshStorage() override;

    std::string location() const override;
    std::int64_t freeSpaceFor(const std::string& folder) override;
    bool exists(const std::string& name) override;
    std::vector<std::string> list(const std::string& folder) override;
    std::string read(const std::string& file) override;
    void makeFolder(const std::string& folder) override;
    std::unique_ptr<StorageFile> create(const std::string& file) override;
    void replaceFile(const std::string& from, const std::string& to) override;
    void replaceFolder(const std::string& from, const std::string& to) override;
    void remove(const std::string& name) override;

private:
    void takeFolder(const std::string& folder);
    std::string pathOf(const std::string& name) const { return name.empty() ? base_ : base_ + "/" + name; }
    using Requests = std::vector<SftpClient::Request>;
    Requests startFind(const std::string& name);
    std::optional<SftpAttributes> awaitFound(const std::string& name, const Requests& requests);
    /// Nothing for what is not there. Throws for a name behind a link or a file.
    std::optional<SftpAttributes> find(const std::string& name) { return awaitFound(name, startFind(name)); }
    /// For work that begins with it: throws when a later transfer has the device.
    std::optional<SftpAttributes> findAsOwner(const std::string& name);
    /// What was found, which must not be a link.
    std::optional<SftpAttributes> notALink(const std::string& name, std::optional<SftpAttributes> found) const;
    void makeOneFolder(const std::string& path);
    void makeBase();

    /// Makes this the transfer that works; another that does stops.
    void beginWork();

    void replace(const std::string& from, const std::string& to);
    void recover();
    void putBackOrAway(const std::string& kept);
    SftpResult removeTree(const std::string& path, int depth = 0);
    SftpResult removeEntries(const std::string& folder, const std::vector<SftpClient::Entry>& entries, int depth);

    void demand(const SftpResult& result, const char* action, const std::string& path);

    FileDescriptor lock_;
    SftpClient client_;
    /// The folder's full path on the handheld.
    std::string base_;
    /// The path of our owner's file; "" before there is one.
    std::string owner_;
    /// Folders that were seen or made, so that they need not be looked for with each file.
    std::set<std::string> folders_;
};

/// "a", "a/b" and "a/b/c" of "a/b/c".
std::vector<std::string> beginnings(const std::string& name);

/// Throws the TransferError of a request that failed; `action` is what was to be done with `path`, in words.
void demandSftp(SftpClient& client, const std::string& base, const SftpResult& result, const char* action,
                const std::string& path);

} // namespace qlpipe
