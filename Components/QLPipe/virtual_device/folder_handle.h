#pragma once
// Files below one folder, reached in a way that no link can lead out of it.
#include <string>
#include <utility>
#include <vector>

namespace qlpipe {

/// An open descriptor.
class Descriptor {
public:
    explicit Descriptor(int value = -1) : value_(value) {}
    Descriptor(Descriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    ~Descriptor();
    int get() const { return value_; }
    explicit operator bool() const { return value_ >= 0; }

private:
    int value_;
};

/// A folder as root. Names are relative, with "/" between their parts. Each part is opened in the folder before it, and a
/// link is never followed: what is opened lies below the root whatever another program does meanwhile.
class FolderHandle {
public:
    /// `location` names the folder in errors. The descriptor's folder is the root.
    FolderHandle(Descriptor folder, std::string location)
        : folder_(std::move(folder)), location_(std::move(location)) {}

    const std::string& location() const { return location_; }
    /// The root itself for "". Throws TransferError.
    Descriptor openFolder(const std::string& name) const;
    /// As openFolder, with a folder that is not there as an empty descriptor.
    Descriptor findFolder(const std::string& name) const;
    void makeFolders(const std::string& name) const;
    /// Without "." and "..", sorted.
    std::vector<std::string> names(const std::string& folder) const;
    bool exists(const std::string& name) const;
    /// With all that is in it; a link goes, not what it leads to.
    void remove(const std::string& name) const;
    /// Bytes of all files below.
    std::int64_t bytesBelow(const std::string& name) const;
    /// Puts a folder and all below it on the disk.
    void syncTree(const std::string& name) const;

    [[noreturn]] void fail(int error, const std::string& name) const;

private:
    Descriptor folder_;
    std::string location_;
};

} // namespace qlpipe
