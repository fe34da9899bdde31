#pragma once
// Registry keys of preferences. The user's and the machine's have the same path under different roots.

namespace fernwick {

inline constexpr const char* kAddinPrefsKey = "SOFTWARE\\Quinloft\\AddinPrefs";
inline constexpr const char* kMyDevicesKey = "SOFTWARE\\Quinloft\\AddinPrefs\\MyDevices";
inline constexpr const char* kTavletGroupsKey = "SOFTWARE\\Quinloft\\AddinPrefs\\TavletGroups";
inline constexpr const char* kAddInKey = "SOFTWARE\\Quinloft\\Embedded Toolkit\\AddIn";

/// Maximum length of a stored list. A list with a larger count is damaged and counts as empty: counts come from stores
/// that are not trusted.
inline constexpr int kMostStoredEntries = 65536;

} // namespace fernwick
