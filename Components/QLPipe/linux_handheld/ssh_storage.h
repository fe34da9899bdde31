#pragma once
// The storage of a Linux handheld.
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/linux_handheld/sftp_client.h"

namespace qlpipe {

/// Names with this prefix are internal and never listed.
inline constexpr std::string_view kOwnPrefix = ".fernwick-";

/// What a storage is opened for. Reading changes nothing on the handheld.
enum class SshUse { Read, Transfer };

/// The storage inside one folder of the handheld. Internal files protect against interruptions and other computers:
///
/// - A file is written as .fernwick-part-HASH and renamed when it is closed.
/// - A replaced folder is moved to .fernwick-replaced, with "/" in its name encoded as "%2F", until the new one is in
///   place. The next connection restores what it finds there if the original place is empty, and removes it otherwise.
/// - .fernwick-owner-NUMBER exists during a transfer. A new transfer removes the files of others. A transfer whose
///   file is missing has lost the device to a later one and stops before the two mix.
class SshStorage final : public DeviceStorage {
public:
    /// Holds `lock` during the storage's lifetime.
    explicit SshStorage(const SshTarget& target, const SshTimeouts& timeouts = {},
                        FileDescriptor lock = FileDescriptor{}, SshUse use = SshUse::Transfer);
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
    /// Returns nothing if the name does not exist. Throws if its path contains a link or a file.
    std::optional<SftpAttributes> find(const std::string& name) { return awaitFound(name, startFind(name)); }
    /// Like find, but throws if a later transfer has taken the device.
    std::optional<SftpAttributes> findAsOwner(const std::string& name);
    /// Like find, but throws for a link.
    std::optional<SftpAttributes> notALink(const std::string& name, std::optional<SftpAttributes> found) const;
    void makeOneFolder(const std::string& path);
    void makeBase();

    /// Makes this transfer the owner of the device. The previous owner stops.
    void beginWork();

    void replace(const std::string& from, const std::string& to);
    void recover();
    void putBackOrAway(const std::string& kept);
    /// A tree that is being removed. Folders that are too deep for the recursion are moved up to its top first.
    struct Removal {
        std::string top;
        std::size_t moved = 0;
    };
    SftpResult removeTree(const std::string& path);
    SftpResult removeTree(const std::string& path, Removal& removal, std::size_t depth);
    SftpResult removeEntries(const std::string& folder, const std::vector<SftpClient::Entry>& entries, Removal& removal,
                             std::size_t depth);

    void demand(const SftpResult& result, const char* action, const std::string& path);

    FileDescriptor lock_;
    SftpClient client_;
    /// Absolute path of the folder on the handheld.
    std::string base_;
    /// Path of this transfer's owner file, or "" before it exists.
    std::string owner_;
    /// Folders that are known to exist, so that they are not checked for every file.
    std::set<std::string> folders_;
};

/// Returns "a", "a/b" and "a/b/c" for "a/b/c".
std::vector<std::string> pathPrefixes(const std::string& name);

} // namespace qlpipe
