#include "Components/QLPipe/linux_handheld/ssh_upload.h"
#include "Components/QLPipe/linux_handheld/ssh_storage.h"
#include <algorithm>
#include <utility>

namespace qlpipe {

namespace {

/// A block that every server takes, and so many of them that a network of 20 ms and 100 MB/s stays busy.
constexpr std::size_t kBlock = 32 * 1024;
constexpr std::size_t kBlocksUnderWay = 64;

} // namespace

SshUpload::SshUpload(SftpClient& client, std::string base, std::string path)
    : client_(client), base_(std::move(base)), path_(std::move(path)), part_(path_ + std::string{kPartSuffix}) {
    block_.reserve(kBlock);
    demand(client_.open(part_, kSftpForWriting | kSftpCreate | kSftpTruncate, handle_), "write");
}

SshUpload::~SshUpload() {
    if (isDone_ || !client_.channel().isOpen()) return;
    try {
        discard();
    } catch (const TransferError&) {} // what is left is overwritten or removed the next time
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
    while (!underWay_.empty()) awaitOldest();
    demand(client_.flush(handle_), "write");
    demand(client_.close(std::exchange(handle_, {})), "write");
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
