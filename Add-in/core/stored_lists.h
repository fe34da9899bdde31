#pragma once
// The limit of lists that are stored as a count and numbered entries.
#include <cstddef>

namespace fernwick {

/// Maximum length of a stored list. A list with a larger count is damaged and counts as empty: counts come from stores
/// that are not trusted.
inline constexpr int kMostStoredEntries = 65536;

/// Error 6 for a list that its reader would take for a damaged one. A writer calls it before it changes anything.
void requireStorableCount(std::size_t count);

} // namespace fernwick
