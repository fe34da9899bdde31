#pragma once
// A file on a simulated device.
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/virtual_device/folder_handle.h"
#include <sys/types.h>

namespace qlpipe {

inline constexpr mode_t kNewFileMode = 0666;

/// A file being written. The device must outlive it.
class VirtualFile final : public StorageFile {
public:
    /// Creates the file. Throws TransferError if the name exists.
    VirtualFile(const FolderHandle& root, std::string name);
    ~VirtualFile() override;

    void write(std::string_view bytes) override;
    void close() override;

private:
    const FolderHandle& root_;
    std::string name_;
    FileDescriptor parent_, file_;
};

} // namespace qlpipe
