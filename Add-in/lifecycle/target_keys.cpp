#include "Add-in/lifecycle/target_keys.h"
#include <set>

namespace fernwick {

std::vector<std::string> oneTargetAPlatform(const std::vector<std::string>& keys) {
    std::vector<std::string> kept;
    std::set<std::string> platforms;
    for (const auto& key : keys) {
        const auto dash = key.find('-');
        if (dash == std::string::npos || platforms.insert(key.substr(0, dash)).second) kept.push_back(key);
    }
    return kept;
}

} // namespace fernwick
