#pragma once
// Files that a project depends on, as a list.
#include <cstdint>
#include <string>
#include <vector>

namespace fernwick {

/// One dependency file.
struct tResource {
    /// Relative to the project's folder, or the bare name of a font in the fonts folder.
    std::string FileName{};
    /// The extension in upper case ("CMF").
    std::string FileType{};
    /// Size in bytes when it was read or added; 0 if unknown.
    std::int32_t FileSize = 0;
    /// "???" until the settings dialog fills it in.
    std::string Description = "???";
    friend bool operator==(const tResource&, const tResource&) = default;
};

/// The FileType of converted fonts, which the fonts folder may hold for all projects.
inline constexpr char kFontType[] = "CMF";

// Where a project stores the list: its length, and "NAME,TYPE" under numbered keys from 0.
inline constexpr char kProjectDependencies[] = "Quinloft Project Dependencies";
inline constexpr char kNumDependencies[] = "NumDependencies";
inline constexpr char kDependencyKey[] = "Dependencies";

/// A list of dependency files, indexed from 0.
struct tResourceList {
    std::vector<tResource> entries;

    std::int32_t Count() const { return std::int32_t(entries.size()); }
    auto begin() const { return entries.begin(); }
    auto end() const { return entries.end(); }
};

} // namespace fernwick
