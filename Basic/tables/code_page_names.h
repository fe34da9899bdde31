#pragma once
// The code pages, for the library and for the generator of its tables.
#include <algorithm>
#include <cstddef>
#include <iterator>

namespace basic {

inline constexpr int kUtf8Page = 65001;

struct CodePageName {
    int number;
    const char* languages; ///< such as "Central European"
    bool hasTable = true;  ///< false for the pages that are computed
};

/// All pages by ascending number.
inline constexpr CodePageName kCodePageNames[] = {
    {874, "Thai"},
    {932, "Japanese"},
    {936, "Simplified Chinese"},
    {949, "Korean"},
    {950, "Traditional Chinese"},
    {1250, "Central European"},
    {1251, "Cyrillic"},
    {1252, "Western European", false},
    {1253, "Greek"},
    {1254, "Turkish"},
    {1255, "Hebrew"},
    {1256, "Arabic"},
    {1257, "Baltic"},
    {1258, "Vietnamese"},
    {kUtf8Page, "Unicode, UTF-8", false},
};

inline constexpr auto kCodePageTableCount = static_cast<std::size_t>(std::count_if(
    std::begin(kCodePageNames), std::end(kCodePageNames), [](const auto& page) { return page.hasTable; }));

} // namespace basic
