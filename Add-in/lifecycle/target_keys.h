#pragma once
#include <string>
#include <vector>

namespace fernwick {

/// Keeps the first key of each platform, which is the text before the first "-". A key without "-" is always kept.
std::vector<std::string> oneTargetAPlatform(const std::vector<std::string>& keys);

} // namespace fernwick
