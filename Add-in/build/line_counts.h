#pragma once
// The line counts of source files on disk.
#include "Add-in/platform/files.h"
#include <map>
#include <string>

namespace fernwick {

/// Counts carriage returns, like the code window: neither a lone line feed nor the end of the file ends a line. Counts
/// are cached by path, size and time, because a run asks for one file thousands of times.
class LineCounts {
public:
    explicit LineCounts(const FileSystemObject& files) : files_(files) {}

    void forget() { counted_.clear(); }
    /// Error 53 for a missing file.
    std::int32_t getLineCount(const std::string& fileName);

private:
    struct Counted {
        std::int64_t size = -1;
        std::int64_t changed = 0;
        std::int32_t lines = 0;
    };

    const FileSystemObject& files_;
    std::map<std::string, Counted> counted_;
};

} // namespace fernwick
