#pragma once
// The values of Reference= and Object= lines.
// Source: real project files; [MS-OVBA] 2.1.1.8 LibidReference.
#include <cstdint>
#include <string>
#include <string_view>

namespace host {

/// One reference of a project. A path is kept as it is written, with "\".
struct LibraryReference {
    enum class Kind {
        TypeLibrary,    ///< *\G{guid}#major.minor#lcid#path#description
        Project,        ///< *\Apath: another project
        Control,        ///< {guid}#major.minor#lcid; file
        ControlProject, ///< an Object line with *\Apath
        OleObject,      ///< progid; server
        Unknown,        ///< kept, but not understood
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

/// The value of a Reference= line. Never fails: what is not understood is Kind::Unknown with the text as path.
LibraryReference parseReferenceLine(std::string_view value);
/// The value of an Object= line, likewise.
LibraryReference parseObjectLine(std::string_view value);

/// The value for the line of its kind.
std::string formatReference(const LibraryReference& reference);

/// A GUID in upper case and braces; empty when `text` (with or without braces) is none.
std::string normalGuid(std::string_view text);

} // namespace host
