#include "Components/QLPipe/linux_handheld/ssh_upload.h"
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/sha256.h"
#include "Components/QLPipe/linux_handheld/sftp_errors.h"
#include "Components/QLPipe/linux_handheld/ssh_storage.h"
#include <utility>

namespace qlpipe {

namespace {

/// A block size that every server accepts, and enough pending blocks to saturate a network of 20 ms and 100 MB/s.
constexpr std::size_t kBlock = 32 * 1024;
constexpr std::size_t kBlocksUnderWay = 64;

/// Returns a temporary name in the same folder. It is short enough even if the file's name has the maximum length.
std::string partOf(const std::string& path) {
    Sha256 hash;
    hash.add(lastPart(path));
    return folderOf(path) + "/" + std::string{kOwnPrefix} + "part-" + hash.hex().substr(0, 16);
}

} // namespace

SshUpload::SshUpload(SftpClient& client, std::string base, std::string path)
    : client_(client), base_(std::move(base)), path_(std::move(path)), part_(partOf(path_)) {
    block_.reserve(kBlock);
    // Removes the file of an interrupted transfer, or a link in its place.
    const auto removal = client_.startRemove(part_);
    const auto opened = client_.open(part_, kSftpNewFile, handle_);
    (void)client_.awaitResult(removal);
    demand(opened, "write");
}

SshUpload::~SshUpload() {
    if (isDone_ || !client_.channel().isOpen()) return;
    try {
        discard();
    } catch (const TransferError&) {} // The next transfer overwrites or removes it.
}

void SshUpload::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto taken = bytes.substr(0, kBlock - block_.size());
        block_ += taken;
        bytes.remove_prefix(taken.size());
        if (block_.size() == kBlock) sendBlock();
    }
}

void SshUpload::sendBlock() {
    if (underWay_.size() == kBlocksUnderWay) awaitOldest();
    underWay_.push_back(client_.startWrite(handle_, offset_, block_));
    offset_ += block_.size();
    block_.clear();
}

void SshUpload::awaitOldest() {
    const auto oldest = underWay_.front();
    underWay_.pop_front();
    demand(client_.awaitResult(oldest), "write");
}

void SshUpload::close() {
    if (!block_.empty()) sendBlock();
    // Sent together, because small files are dominated by latency.
    const auto flushed = client_.startFlush(handle_);
    const auto closed = client_.startClose(std::exchange(handle_, {}));
    while (!underWay_.empty()) awaitOldest();
    if (flushed) demand(client_.awaitResult(*flushed, client_.channel().timeouts().flush), "write");
    demand(client_.awaitResult(closed), "write");
    demand(client_.rename(part_, path_), "write");
    isDone_ = true;
}

void SshUpload::discard() {
    for (const auto request : std::exchange(underWay_, {})) (void)client_.awaitResult(request);
    if (!handle_.empty()) (void)client_.close(handle_);
    (void)client_.awaitResult(client_.startRemove(part_));
}

void SshUpload::demand(const SftpResult& result, const char* action) {
    demandSftp(client_, base_, result, action, path_);
}

} // namespace qlpipe
