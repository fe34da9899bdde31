#include "Components/QLPipe/linux_handheld/ssh_storage.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/sftp_errors.h"
#include "Components/QLPipe/linux_handheld/ssh_upload.h"
#include "Components/QLPipe/package/bundle.h"
#include <algorithm>
#include <random>

namespace qlpipe {

namespace {

constexpr std::size_t kLargestRead = kLargestManifest;
constexpr std::uint32_t kReadBlock = 32 * 1024;
constexpr std::string_view kOwnerPrefix = ".fernwick-owner-";

std::string ownerFile() {
    std::random_device random;
    return std::string{kOwnerPrefix} + std::to_string(random()) + std::to_string(random());
}

} // namespace

std::vector<std::string> pathPrefixes(const std::string& name) {
    std::vector<std::string> parts;
    for (auto end = name.find('/'); end != std::string::npos; end = name.find('/', end + 1))
        parts.push_back(name.substr(0, end));
    if (!name.empty()) parts.push_back(name);
    return parts;
}

SshStorage::SshStorage(const SshTarget& target, const SshTimeouts& timeouts, FileDescriptor lock, SshUse use)
    : lock_(std::move(lock)), client_(target, timeouts) {
    takeFolder(target.folder);
    if (use == SshUse::Transfer) recover();
}

SshStorage::~SshStorage() {
    if (owner_.empty() || !client_.channel().isOpen()) return;
    try {
        (void)client_.awaitResult(client_.startRemove(owner_));
    } catch (const TransferError&) {} // The next transfer removes it.
}

void SshStorage::beginWork() {
    std::vector<SftpClient::Entry> entries;
    demand(client_.list(base_, entries), "list", base_);
    for (const auto& [name, attributes] : entries)
        if (name.starts_with(kOwnerPrefix)) (void)client_.awaitResult(client_.startRemove(pathOf(name)));
    const auto path = pathOf(ownerFile());
    std::string handle;
    demand(client_.open(path, kSftpNewFile, handle), "write to", base_);
    (void)client_.close(handle);
    owner_ = path;
}

void SshStorage::takeFolder(const std::string& folder) {
    std::string home;
    if (!folder.starts_with('/')) {
        demand(client_.realPath(".", home), "find", "the home folder");
        if (home == "/") home.clear();
    }
    base_ = folder.starts_with('/') ? folder : home + "/" + folder;
    SftpAttributes found;
    // The folder itself may be a link, because the user chose it.
    if (client_.lstat(base_, found) && found.isLink()) {
        const auto link = base_;
        demand(client_.realPath(link, base_), "find", link);
    }
}

std::string SshStorage::location() const {
    const auto& target = client_.channel().target();
    return target.user + "@" + target.address() + ":" + base_;
}

std::int64_t SshStorage::freeSpaceFor(const std::string&) {
    // The old and the new application exist side by side until the new one is complete.
    auto path = base_;
    for (SftpAttributes found; !client_.lstat(path, found) && !path.empty();) path = folderOf(path);
    return client_.freeSpace(path.empty() ? "/" : path);
}

SshStorage::Requests SshStorage::startFind(const std::string& name) {
    Requests requests{client_.startLstat(base_)};
    for (const auto& part : pathPrefixes(name)) requests.push_back(client_.startLstat(pathOf(part)));
    return requests;
}

std::optional<SftpAttributes> SshStorage::awaitFound(const std::string& name, const Requests& requests) {
    std::vector<SftpAttributes> found(requests.size());
    std::vector<SftpResult> results;
    for (std::size_t i = 0; i < requests.size(); ++i) results.push_back(client_.awaitAttributes(requests[i], found[i]));

    const auto parts = pathPrefixes(name);
    for (std::size_t i = 0; i < found.size(); ++i) {
        const auto path = i == 0 ? base_ : pathOf(parts[i - 1]);
        if (results[i].code == kSftpNoSuchFile) return std::nullopt;
        demand(results[i], "examine", path);
        if (i + 1 == found.size()) break;
        if (found[i].isLink()) throw sshError(SshMessage::LinkRefused, {{"path", path}});
        if (!found[i].isFolder()) throw sshError(SshMessage::NotFolder, {{"path", path}});
    }
    return found.back();
}

std::optional<SftpAttributes> SshStorage::findAsOwner(const std::string& name) {
    if (owner_.empty()) beginWork();
    const auto owner = client_.startLstat(owner_);
    const auto requests = startFind(name);
    SftpAttributes found;
    const bool isOwner = client_.awaitAttributes(owner, found).code != kSftpNoSuchFile;
    const auto answer = awaitFound(name, requests);
    if (!isOwner) throw transferError(kDeviceBusy, {{"device", location()}});
    return answer;
}

std::optional<SftpAttributes> SshStorage::notALink(const std::string& name, std::optional<SftpAttributes> found) const {
    if (found && found->isLink()) throw sshError(SshMessage::LinkRefused, {{"path", pathOf(name)}});
    return found;
}

bool SshStorage::exists(const std::string& name) { return find(name).has_value(); }

std::vector<std::string> SshStorage::list(const std::string& folder) {
    const auto found = notALink(folder, find(folder));
    if (!found) return {};
    if (!found->isFolder()) throw sshError(SshMessage::NotFolder, {{"path", pathOf(folder)}});
    std::vector<SftpClient::Entry> entries;
    demand(client_.list(pathOf(folder), entries), "list", pathOf(folder));
    std::vector<std::string> names;
    for (auto& entry : entries)
        if (!entry.name.starts_with(kOwnPrefix)) names.push_back(std::move(entry.name));
    std::ranges::sort(names);
    return names;
}

std::string SshStorage::read(const std::string& file) {
    const auto path = pathOf(file);
    // Reading from a FIFO or a device could block.
    if (const auto found = notALink(file, find(file)); found && !found->isFile())
        demand({kSftpFailure, "it is not a file"}, "read", path);
    std::string handle, bytes, block;
    demand(client_.open(path, kSftpForReading, handle), "read", path);
    SftpResult result;
    do {
        result = client_.read(handle, bytes.size(), kReadBlock, block);
        bytes += block;
    } while (result && !block.empty() && bytes.size() <= kLargestRead);
    (void)client_.close(handle);
    demand(result, "read", path);
    if (bytes.size() > kLargestRead) throw sshError(SshMessage::FileTooLarge, {{"path", path}});
    return bytes;
}

void SshStorage::makeOneFolder(const std::string& path) {
    SftpAttributes found;
    const auto result = client_.lstat(path, found);
    if (result.code == kSftpNoSuchFile) return demand(client_.makeFolder(path), "make", path);
    demand(result, "examine", path);
    if (!found.isFolder())
        throw sshError(found.isLink() ? SshMessage::LinkRefused : SshMessage::NotFolder, {{"path", path}});
}

void SshStorage::makeBase() {
    SftpAttributes found;
    if (client_.lstat(base_, found)) return;
    // Links above the folder, as in /home, are followed.
    for (const auto& path : pathPrefixes(base_))
        if (!path.empty() && client_.lstat(path, found).code == kSftpNoSuchFile)
            demand(client_.makeFolder(path), "make", path);
}

void SshStorage::makeFolder(const std::string& folder) {
    if (folders_.contains(folder)) return;
    if (const auto found = notALink(folder, find(folder)); !found || !found->isFolder()) {
        makeBase();
        if (owner_.empty()) beginWork();
        for (const auto& part : pathPrefixes(folder)) makeOneFolder(pathOf(part));
    }
    folders_.insert(folder);
}

std::unique_ptr<StorageFile> SshStorage::create(const std::string& file) {
    if (findAsOwner(file)) throw sshError(SshMessage::NameTaken, {{"path", pathOf(file)}});
    return std::make_unique<SshUpload>(client_, base_, pathOf(file));
}

void SshStorage::demand(const SftpResult& result, const char* action, const std::string& path) {
    demandSftp(client_, base_, result, action, path);
}

} // namespace qlpipe
