#pragma once
// The storage of one device.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qlpipe {

/// Aborts a transfer. It never leaves the pipes, which report it as an error event.
struct TransferError {
    /// Number of a pipe message.
    std::int32_t number;
    /// What happened, where, and what to do.
    std::string text;
};

/// A file being written. It does not exist on the device until it is closed.
class StorageFile {
public:
    virtual ~StorageFile() = default;
    virtual void write(std::string_view bytes) = 0;
    /// Returns after the file has reached the device's disk.
    virtual void close() = 0;
};

/// Files and folders inside the device's folder. Names are relative to it, with "/" as separator. The caller must have
/// checked them: no empty parts, no "." or "..", no "\" and no NUL. Links are never followed out of the folder.
/// All operations may throw TransferError.
class DeviceStorage {
public:
    virtual ~DeviceStorage() = default;

    /// Returns the location for users: a folder, or "user@host:folder".
    virtual std::string location() const = 0;
    /// Returns the number of bytes available for a folder, or -1 if unknown. If the folder exists, it will be replaced:
    /// a device that does not need to hold both folders at once adds the size of the old one.
    virtual std::int64_t freeSpaceFor(const std::string& folder) = 0;
    virtual bool exists(const std::string& name) = 0;
    /// Returns the sorted names in a folder, or nothing if the folder does not exist.
    virtual std::vector<std::string> list(const std::string& folder) = 0;
    /// Returns the content of a small file, such as a manifest. More than 1 MiB is an error.
    virtual std::string read(const std::string& file) = 0;
    /// Creates a folder and its parents. Does nothing if it exists.
    virtual void makeFolder(const std::string& folder) = 0;
    /// Creates a file in an existing folder. An existing name is an error.
    virtual std::unique_ptr<StorageFile> create(const std::string& file) = 0;
    /// Renames a file, atomically replacing an existing one.
    virtual void replaceFile(const std::string& from, const std::string& to) = 0;
    /// Renames a folder, replacing an existing one. After an interruption either the old or the new folder exists.
    virtual void replaceFolder(const std::string& from, const std::string& to) = 0;
    /// Removes a file, or a folder with its content. Does nothing if it does not exist.
    virtual void remove(const std::string& name) = 0;
};

} // namespace qlpipe
