#pragma once
// The temporary file of a package that is being written.
#include <string>

namespace qlpipe {

/// Throws the error of a package that cannot be written.
[[noreturn]] void packageNotWritten(const std::string& package, const std::string& reason);

/// The file ".<name>.<process>.part", so that an incomplete package is not mistaken for a complete one. Removes it
/// unless it is finished.
class UnfinishedPackage {
public:
    explicit UnfinishedPackage(const std::string& target);
    ~UnfinishedPackage();
    const std::string& path() const { return path_; }

    /// Flushes the file to disk and gives it its final name. Throws TransferError.
    void finish();

private:
    void removeLeftovers(const std::string& begin) const;

    std::string target_, folder_, path_;
};

} // namespace qlpipe
