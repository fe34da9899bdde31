#pragma once
// A device that is simulated by a folder on this machine.
#include "Components/QLPipe/base/device_request.h"
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/virtual_device/folder_handle.h"
#include <chrono>
#include <optional>

namespace qlpipe {

/// The storage of a simulated device. Only one transfer can use it at a time; others wait.
class VirtualDevice final : public DeviceStorage {
public:
    static constexpr std::chrono::milliseconds kUsualPatience{30'000};

    /// Creates the folder if necessary and cleans up after an interrupted transfer. `memory` is in bytes; without it
    /// the device is as large as its disk. Throws TransferError, also if the device is still in use after `patience`.
    VirtualDevice(const std::string& folder, std::optional<std::int64_t> memory,
                  std::chrono::milliseconds patience = kUsualPatience);

    /// Opens the device for reading, also while a transfer uses it, and changes nothing, not even if it does not exist.
    static std::unique_ptr<VirtualDevice> openToRead(const std::string& folder, std::optional<std::int64_t> memory);

    std::string location() const override { return root_.location(); }
    std::int64_t freeSpaceFor(const std::string& folder) override;
    bool exists(const std::string& name) override { return root_.exists(name); }
    std::vector<std::string> list(const std::string& folder) override { return root_.names(folder); }
    std::string read(const std::string& file) override;
    void makeFolder(const std::string& folder) override { root_.makeFolders(folder); }
    std::unique_ptr<StorageFile> create(const std::string& file) override;
    void replaceFile(const std::string& from, const std::string& to) override;
    void replaceFolder(const std::string& from, const std::string& to) override;
    void remove(const std::string& name) override { root_.remove(name); }

private:
    VirtualDevice(FolderHandle root, std::optional<std::int64_t> memory) : root_(std::move(root)), memory_(memory) {}
    void lock(std::chrono::milliseconds patience);
    void recover();
    void recoverFolder(const std::string& folder);
    bool exchange(const std::string& from, const std::string& to);
    void rename(const std::string& from, const std::string& to);

    FolderHandle root_;
    std::optional<std::int64_t> memory_;
    FileDescriptor lock_;
};

/// Opens the device of a design target: the folder with its name in $FERNWICK_DEVICES, or in fernwick/devices of the
/// user's data folder, with the memory of the target.
std::unique_ptr<DeviceStorage> openVirtualDevice(const PipeServices& services, const DeviceRequest& request);

} // namespace qlpipe
