#pragma once
// Whether a project's files would be the same byte for byte if they were written back.
#include "Basic/code_page.h"
#include <optional>
#include <string>
#include <vector>

namespace cli {

struct FileVerdict {
    enum class Kind {
        Same,    ///< writing it back changes nothing
        Changes, ///< `firstByte` is the first that would differ
        Missing, ///< named by the project or a form, and not there
        Unreadable,
    };
    std::string file;
    Kind kind = Kind::Same;
    std::size_t firstByte = 0;
    std::string reason; ///< why it could not be read
};

/// The project's own file, its components', and the resource files that stand beside these or are named in them. Each
/// once, in the project's order. Takes every file apart as far as the host can. Errors: 321 for what is no project;
/// those of reading the project's file.
std::vector<FileVerdict> verifyProject(const std::string& path, const basic::CodePage& usual);

/// The same of one file of a group, whose projects are not gone through.
FileVerdict verifyGroup(const std::string& path, const basic::CodePage& usual);

} // namespace cli
