#pragma once
// State and times of files, with the errors that scripts get.
#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>

namespace host {

inline constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;

/// The state of a file or folder; nothing if it does not exist or is not accessible.
std::optional<struct ::stat> stateOf(const std::string& path);

/// The state of a file. Error 53 for a folder; otherwise as scriptError.
struct ::stat fileState(const std::string& path);

/// Checks that a file can be created or replaced here. Errors: 76 no such folder, 58 the file exists and `overwrite` is
/// false, 70 it is a folder or read-only.
void requirePlace(const std::string& path, bool overwrite);

/// `time` is in nanoseconds since 1970, UTC.
void setFileTime(const std::string& path, std::int64_t time);

/// Gives a copy the times of its source, so that it is as current, and a new file also the mode.
void copyTimesAndMode(const struct ::stat& source, const std::string& path, bool isNew);

} // namespace host
