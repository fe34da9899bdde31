#pragma once
// How many lines source files have on disk.
#include "Add-in/platform/files.h"
#include <map>
#include <string>

namespace fernwick {

/// Counts by carriage returns, as the code window's line is reckoned: a lone line feed ends no line, nor does the
/// end of the file. Kept by path, size and time, for a run asks for one file thousands of times.
class LineCounts {
public:
    explicit LineCounts(const FileSystemObject& files) : files_(files) {}

    void forget() { counted_.clear(); }
    /// Error 53 where there is no file.
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
