#pragma once
// Reads packages, which are not trusted.
#include "Components/QLPipe/base/device_storage.h"
#include "Components/QLPipe/package/bundle.h"
#include <memory>
#include <string>

namespace qlpipe {

/// An open package whose manifest matches its list of entries. The content of files is verified while reading.
class Package {
public:
    /// Throws TransferError for an invalid package, unsafe names, or entries that do not match the manifest.
    explicit Package(const std::string& path);
    ~Package();

    /// Returns its content. Files can be opened one at a time, as long as the result or the package exists.
    const Bundle& bundle() const { return bundle_; }
    const std::string& path() const;
    /// Reads all files and calls `pause` now and then, which may throw. Throws TransferError for the first file that does
    /// not match the manifest.
    void verify(const std::function<void()>& pause = [] {}) const;

    class Archive;

private:
    std::shared_ptr<Archive> archive_;
    Bundle bundle_;
};

} // namespace qlpipe
