#pragma once
// Keys of design targets as projects store them.
#include <string>

namespace fernwick {

/// The key for a registry path that earlier versions stored in its place; any other text unchanged. Letter case counts.
inline std::string currentDeviceKey(const std::string& stored) {
    if (stored == "SOFTWARE\\Quinloft\\DesignTargets\\PalmOS") return "PalmOS-DragonBall";
    if (stored == "SOFTWARE\\Quinloft\\DesignTargets\\PocketPC") return "PocketPC-SH3";
    return stored;
}

} // namespace fernwick
