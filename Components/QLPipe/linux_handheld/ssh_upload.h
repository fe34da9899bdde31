#pragma once
#include "Components/QLPipe/device_storage.h"
#include "Components/QLPipe/linux_handheld/sftp_client.h"
#include <deque>

namespace qlpipe {

/// A file on its way to a handheld. It goes in blocks, many of them under way at once, so that neither the way there
/// and back nor the handheld's disk is waited for with each.
class SshUpload final : public StorageFile {
public:
    /// `path` is the file's on the handheld, `base` the folder whose room is looked at when a write fails.
    SshUpload(SftpClient& client, std::string base, std::string path);
    ~SshUpload() override;

    void write(std::string_view bytes) override;
    void close() override;

private:
    void sendBlock();
    void awaitOldest();
    void discard();
    void demand(const SftpResult& result, const char* action);

    SftpClient& client_;
    std::string base_, path_, part_;
    /// "" when nothing is open.
    std::string handle_;
    bool isDone_ = false;
    std::string block_;
    std::uint64_t offset_ = 0;
    std::deque<SftpClient::Request> underWay_;
};

} // namespace qlpipe
