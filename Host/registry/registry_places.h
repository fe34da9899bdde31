#pragma once
#include "Add-in/platform/environment.h"
#include <filesystem>

namespace host {

/// The folders of the two stores, and the installation whose values are the layer below the machine's.
struct RegistryPlaces {
    std::filesystem::path user;
    std::filesystem::path machine;
    std::filesystem::path installation; ///< empty: no layer
};

/// User: $XDG_CONFIG_HOME/fernwick, else ~/.config/fernwick. Machine: $FERNWICK_MACHINE_STORE, else /var/lib/fernwick
/// if it is writable or can be created, else $XDG_DATA_HOME/fernwick or ~/.local/share/fernwick. Creates nothing.
RegistryPlaces usualRegistryPlaces(const fernwick::Environment& environment, std::filesystem::path installation);

} // namespace host
