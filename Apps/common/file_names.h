#pragma once
#include <string>
#include <string_view>

namespace apps {

/// Ignores letter case. `extension` includes the dot.
bool hasExtension(const std::string& path, std::string_view extension);

/// Returns the absolute folder of a file, which need not exist.
std::string folderOf(const std::string& path);

} // namespace apps
