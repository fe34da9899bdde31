#pragma once
// The paths of a program, which lead into its folder.
#include "Components/Tamarik/ports/file_store.h"
#include <string>
#include <string_view>
#include <vector>

namespace tamarik {

/// The names of a path. A drive is left out; ".." stays at the top. Error 52 for names that no file can have.
[[nodiscard]] std::vector<std::string> namesOf(std::string_view path, const std::vector<std::string>& current);

/// The path in the store. Names of what exists ignore case; missing ones stay as they are.
[[nodiscard]] std::string storedPath(const FileStore& store, const std::vector<std::string>& names);

/// Whether a name fits a pattern with "*" and "?"; "*.*" fits all.
[[nodiscard]] bool fitsPattern(std::string_view name, std::string_view pattern);
[[nodiscard]] bool isPattern(std::string_view name);

/// Whether the name is that of a hidden file.
[[nodiscard]] inline bool isHidden(std::string_view name) { return name.starts_with('.'); }

} // namespace tamarik
