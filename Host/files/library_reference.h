#pragma once
// The values of Reference= and Object= lines.
// Source: real project files; [MS-OVBA] 2.1.1.8 LibidReference.
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// One reference of a project. Paths are kept as written, with "\".
struct LibraryReference {
    enum class Kind {
        TypeLibrary,    ///< *\G{guid}#major.minor#lcid#path#description
        Project,        ///< *\Apath: another project
        Control,        ///< {guid}#major.minor#lcid; file
        ControlProject, ///< an Object line with *\Apath
        OleObject,      ///< progid; server
        Unknown,        ///< not understood, but kept
    };
    Kind kind = Kind::Unknown;
    std::string guid;        ///< upper case, in braces; empty for the kinds without one
    std::uint32_t major = 0; ///< hexadecimal in the file
    std::uint32_t minor = 0; ///< hexadecimal in the file
    std::string lcid = "0";  ///< as written, hexadecimal
    std::string path;        ///< library, project, control file or server
    std::string description; ///< of a type library; may be empty
    std::string progId;      ///< of an OLE object
};

/// Parses the value of a Reference= line. Never fails: an unknown form gives Kind::Unknown with the text as path.
LibraryReference parseReferenceLine(std::string_view value);
/// Parses the value of an Object= line, likewise.
LibraryReference parseObjectLine(std::string_view value);

/// Returns the value for the line of its kind.
std::string formatReference(const LibraryReference& reference);

/// Returns a GUID in upper case and braces; empty if `text` (with or without braces) is not one.
std::string normalGuid(std::string_view text);

struct LibraryVersion {
    std::uint32_t major = 0, minor = 0;
    friend auto operator<=>(const LibraryVersion&, const LibraryVersion&) = default;
};
/// Parses "major.minor" in hexadecimal, as project files and the registry write it.
std::optional<LibraryVersion> parseLibraryVersion(std::string_view text) noexcept;

} // namespace host
