#pragma once
// Where a pipe puts things: the storage of one device.
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace qlpipe {

/// A transfer that can't go on. Stays inside the pipes, which tell it as an error event.
struct TransferError {
    /// One of the pipe messages.
    std::int32_t number;
    /// What happened, where, and what to do.
    std::string text;
};

/// A file on its way to the device. What was not closed is not there.
class StorageFile {
public:
    virtual ~StorageFile() = default;
    virtual void write(std::string_view bytes) = 0;
    /// On the device's disk when this returns.
    virtual void close() = 0;
};

/// Folders and files below the device's own folder. Names are relative to it with "/" between their parts, and were
/// checked by the caller: no empty part, no "." or "..", no "\" or zero. Links are never followed out of the folder.
/// Every operation throws TransferError.
class DeviceStorage {
public:
    virtual ~DeviceStorage() = default;

    /// In words for users: a folder, or "user@host:folder".
    virtual std::string location() const = 0;
    /// Bytes that this folder may take, which may be there already and is then replaced; -1 where the device doesn't
    /// tell. A device that needs room for the old and the new one at once answers what is free, one that doesn't adds
    /// what the old one takes.
    virtual std::int64_t freeSpaceFor(const std::string& folder) = 0;
    virtual bool exists(const std::string& name) = 0;
    /// Names in a folder, sorted; none for a folder that is not there.
    virtual std::vector<std::string> list(const std::string& folder) = 0;
    /// A whole small file, such as a manifest; an error above 1 MiB.
    virtual std::string read(const std::string& file) = 0;
    /// With its parents; nothing for one that is there.
    virtual void makeFolder(const std::string& folder) = 0;
    /// In a folder that is there; an error for a name that is taken.
    virtual std::unique_ptr<StorageFile> create(const std::string& file) = 0;
    /// Puts a file in another's place, or where there is none, as a whole.
    virtual void replaceFile(const std::string& from, const std::string& to) = 0;
    /// Puts a folder in another's place as a whole or not at all; what was there is gone afterwards. An interruption
    /// leaves the old or the new one.
    virtual void replaceFolder(const std::string& from, const std::string& to) = 0;
    /// With all that is in it; nothing for what is not there.
    virtual void remove(const std::string& name) = 0;
};

} // namespace qlpipe
