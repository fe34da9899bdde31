#pragma once
// Whether a project's files would stay the same byte for byte if they were written back.
#include "Basic/code_page.h"
#include <optional>
#include <string>
#include <vector>

namespace cli {

struct FileVerdict {
    enum class Kind {
        Same,    ///< writing it back changes nothing
        Changes, ///< `firstByte` is the first that would differ
        Missing, ///< named by the project or a form, but not found
        Unreadable,
    };
    std::string file;
    Kind kind = Kind::Same;
    std::size_t firstByte = 0;
    std::string reason; ///< why it cannot be read
};

/// Checks the project file, its components and their resource files, each once, in the project's order, by parsing and
/// writing them as far as the host can. `given` is their code page, without which it is detected. Errors: 321 if it is
/// not a project; those of reading the project file.
std::vector<FileVerdict> verifyProject(const std::string& path, const std::optional<basic::CodePage>& given);

/// Checks only the group file, not its projects.
FileVerdict verifyGroup(const std::string& path, const std::optional<basic::CodePage>& given);

} // namespace cli
