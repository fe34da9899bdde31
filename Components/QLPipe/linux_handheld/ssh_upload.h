#pragma once
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/linux_handheld/sftp_client.h"
#include <deque>

namespace qlpipe {

/// Uploads a file to a handheld. Many blocks are pending at once, so that neither the network's latency nor the
/// handheld's disk delays each block.
class SshUpload final : public StorageFile {
public:
    /// `path` is the path on the handheld. `base` is the folder whose free space is checked when a write fails.
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
    /// "" if no file is open.
    std::string handle_;
    bool isDone_ = false;
    std::string block_;
    std::uint64_t offset_ = 0;
    std::deque<SftpClient::Request> underWay_;
};

} // namespace qlpipe
