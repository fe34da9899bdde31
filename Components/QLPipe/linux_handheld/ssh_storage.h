#pragma once
// The storage of a Linux handheld.
#include "Components/QLPipe/device_storage.h"
#include "Components/QLPipe/linux_handheld/sftp_client.h"

namespace qlpipe {

/// Where what is replaced is kept until the new one stands.
inline constexpr char kReplacedFolder[] = ".fernwick-replaced";

/// Below one folder of the handheld. Two folders of our own kind keep an interruption from doing harm:
///
/// - A file is written as NAME.fernwick-part and gets its name when it is closed.
/// - What is replaced goes to .fernwick-replaced under its name, "/" as "%2F", until the new one stands. What the next
///   connection finds there goes back to its place if that is empty, and else away.
///
/// Neither is ever listed.
class SshStorage final : public DeviceStorage {
public:
    explicit SshStorage(const SshTarget& target, const SshTimeouts& timeouts = {});

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
    /// Nothing for what is not there. Throws for a name behind a link or a file.
    std::optional<SftpAttributes> find(const std::string& name);
    /// What find finds, which must not be a link.
    std::optional<SftpAttributes> findNoLink(const std::string& name);
    void makeOneFolder(const std::string& path);
    void makeBase();

    void replace(const std::string& from, const std::string& to);
    void recover();
    void putBackOrAway(const std::string& kept);
    SftpResult removeTree(const std::string& path, int depth = 0);
    SftpResult removeEntries(const std::string& folder, const std::vector<SftpClient::Entry>& entries, int depth);

    void demand(const SftpResult& result, const char* action, const std::string& path);

    SftpClient client_;
    /// The folder's full path on the handheld.
    std::string base_;
};

/// Throws the TransferError of a request that failed; `action` is what was to be done with `path`, in words.
void demandSftp(SftpClient& client, const std::string& base, const SftpResult& result, const char* action,
                const std::string& path);

} // namespace qlpipe
