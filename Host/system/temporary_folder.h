#pragma once
#include <string>

namespace host {

/// A folder that is private to this process. It is created at first use and deleted with its contents at the end.
class TemporaryFolder {
public:
    TemporaryFolder() = default;
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    /// Errors as scriptError.
    const std::string& path();

private:
    std::string path_;
};

} // namespace host
