#pragma once
// Registry keys of preferences. The user's and the machine's have the same path under different roots.

namespace fernwick {

inline constexpr const char* kAddinPrefsKey = "SOFTWARE\\Quinloft\\AddinPrefs";
inline constexpr const char* kMyDevicesKey = "SOFTWARE\\Quinloft\\AddinPrefs\\MyDevices";
inline constexpr const char* kTavletGroupsKey = "SOFTWARE\\Quinloft\\AddinPrefs\\TavletGroups";
inline constexpr const char* kAddInKey = "SOFTWARE\\Quinloft\\Embedded Toolkit\\AddIn";

} // namespace fernwick
