#pragma once
// What programs do with whole files and folders of a store.
#include "Components/Tamarik/ports/file_store.h"
#include <cstdint>
#include <string>
#include <vector>

namespace tamarik {

/// As GetAttr returns them.
enum VbFileAttribute : std::int32_t { vbReadOnly = 1, vbHidden = 2, vbVolume = 8, vbDirectory = 16 };
[[nodiscard]] std::int32_t attributesOf(const FileInfo& info, const std::string& path);

/// Replaces the contents of `target`, or makes it. Returns how many bytes there were.
std::uint64_t copyContents(FileStore& store, const std::string& source, const std::string& target);

/// The path of a name in a folder.
[[nodiscard]] std::string pathIn(const std::string& folder, const std::string& name);

/// All that is in a folder and its folders; a folder is before what it contains.
[[nodiscard]] std::vector<std::string> allBelow(const FileStore& store, const std::string& folder);

} // namespace tamarik
