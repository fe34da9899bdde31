#pragma once
// The libraries of the language, which every project refers to without a line in its file.
#include <cstdint>
#include <string_view>

namespace host {

struct LanguageLibrary {
    std::string_view name, guid;
    std::uint32_t major, minor;
    std::string_view file, description;
};

inline constexpr LanguageLibrary kLanguageLibraries[] = {
    {"VBA", "{000204EF-0000-0000-C000-000000000046}", 6, 0, "MSVBVM60.DLL", "Visual Basic For Applications"},
    {"VBRUN", "{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}", 6, 0, "MSVBVM60.DLL\\3",
     "Visual Basic runtime objects and procedures"},
    {"VB", "{FCFB3D2E-A0FA-1068-A738-08002B3371B5}", 6, 0, "VB6.OLB", "Visual Basic objects and procedures"},
};
/// OLE Automation, which new projects refer to.
inline constexpr std::string_view kStdOle = "{00020430-0000-0000-C000-000000000046}";

/// True for the libraries above, which need not be registered.
bool isAlwaysKnown(std::string_view guid) noexcept;

} // namespace host
