#include "Add-in/build/line_counts.h"

namespace fernwick {

namespace {

/// The character after a carriage return, usually a line feed, is skipped; "\r\r" therefore counts as one.
std::int32_t countCarriageReturns(const std::string& bytes) {
    std::int32_t count = 0;
    for (auto at = bytes.find('\r'); at != std::string::npos; at = bytes.find('\r', at + 2)) ++count;
    return count;
}

} // namespace

std::int32_t LineCounts::getLineCount(const std::string& fileName) {
    const auto size = files_.GetSize(fileName);
    const auto changed = files_.GetDateLastModified(fileName);
    auto& counted = counted_[fileName];
    if (counted.size != size || counted.changed != changed)
        counted = {size, changed, countCarriageReturns(files_.ReadBytes(fileName))};
    return counted.lines;
}

} // namespace fernwick
