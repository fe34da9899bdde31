#pragma once
// A home folder for the test.
#include "Add-in/core/modRegistry2.h"
#include "Host/registry/registry_store.h"
#include "Host/system/environment.h"
#include "tests/support/temp_folder.h"
#include <cstdlib>

namespace test {

/// Moves the settings and state of this process to this folder.
struct OwnHome : TempFolder {
    OwnHome() {
        for (const char* place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR",
                                  "FERNWICK_MACHINE_STORE"})
            ::setenv(place, path().c_str(), 1);
    }
};

/// Otherwise it would wait for an answer at each start.
inline void leaveOutIntroduction() {
    host::RegistryStore store{host::usualRegistryPlaces(host::Environment{}, {})};
    fernwick::modRegistry2 registry{store};
    const fernwick::RegistryKey key{registry, registry.OpenOrCreateKey(fernwick::HKEY_LOCAL_MACHINE,
                                                                       "SOFTWARE\\Quinloft\\AddinPrefs",
                                                                       fernwick::KEY_ALL_ACCESS)};
    registry.SetValue(key.handle(), "StartTutorial", std::string("False"), fernwick::REG_SZ);
}

} // namespace test
