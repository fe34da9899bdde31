#pragma once
// Reads a package, which may come from anybody.
#include "Components/QLPipe/bundle.h"
#include "Components/QLPipe/device_storage.h"
#include <memory>
#include <string>

namespace qlpipe {

/// An open package whose manifest and list of entries agree. What its files hold is checked while they are read.
class Package {
public:
    /// Throws TransferError for what is no package, names unsafe places, or holds other entries than its manifest names.
    explicit Package(const std::string& path);
    ~Package();

    /// What it holds; its files can be opened as long as the answer or this lives, one at a time.
    const Bundle& bundle() const { return bundle_; }
    const std::string& path() const;
    /// Reads everything. Throws TransferError for the first file that is not as the manifest says.
    void verify() const;

    class Archive;

private:
    std::shared_ptr<Archive> archive_;
    Bundle bundle_;
};

} // namespace qlpipe
