#pragma once
// Where preferences are stored. The user's and the machine's stand under the same path of different roots.

namespace fernwick {

inline constexpr const char* kAddinPrefsKey = "SOFTWARE\\Quinloft\\AddinPrefs";
inline constexpr const char* kMyDevicesKey = "SOFTWARE\\Quinloft\\AddinPrefs\\MyDevices";
inline constexpr const char* kTavletGroupsKey = "SOFTWARE\\Quinloft\\AddinPrefs\\TavletGroups";
inline constexpr const char* kAddInKey = "SOFTWARE\\Quinloft\\Embedded Toolkit\\AddIn";

/// More than any stored list has. Counts come from stores that anybody may have written to.
inline constexpr int kMostStoredEntries = 65536;

} // namespace fernwick
