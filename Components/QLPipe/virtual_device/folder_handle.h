#pragma once
// Files inside one folder, opened so that no link can lead out of it.
#include "Components/QLPipe/base/file_descriptor.h"
#include <string>
#include <vector>

namespace qlpipe {

/// A root folder. Names are relative to it, with "/" as separator. Each part is opened relative to the previous one
/// without following links, so everything opened is inside the root regardless of what other programs do.
class FolderHandle {
public:
    /// The root is the open `folder`, or a folder that does not exist if that is empty. `location` is its name in errors.
    FolderHandle(FileDescriptor folder, std::string location)
        : folder_(std::move(folder)), location_(std::move(location)) {}

    const std::string& location() const { return location_; }
    /// Opens a folder, or the root for "". Throws TransferError.
    FileDescriptor openFolder(const std::string& name) const;
    /// Like openFolder, but returns an empty descriptor if the folder does not exist.
    FileDescriptor findFolder(const std::string& name) const;
    void makeFolders(const std::string& name) const;
    /// Returns sorted names, without "." and "..".
    std::vector<std::string> names(const std::string& folder) const;
    bool exists(const std::string& name) const;
    /// Removes a file, or a folder with its content. Removes links, not their targets.
    void remove(const std::string& name) const;
    /// Returns the total size of all files below.
    std::int64_t bytesBelow(const std::string& name) const;
    /// Flushes a folder and everything in it to disk.
    void syncTree(const std::string& name) const;

    [[noreturn]] void fail(int error, const std::string& name) const;

private:
    FileDescriptor folder_;
    std::string location_;
};

} // namespace qlpipe
