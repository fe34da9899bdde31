#pragma once
// A project as the checks read it: its sources and libraries, without the add-in.
#include "Basic/detection/code_page_detection.h"
#include "Components/QLToolkit/parser/conditional_constants.h"
#include "Host/files/path_lookup.h"
#include "Host/files/project_file.h"
#include "Host/files/text_file.h"
#include <optional>
#include <string>
#include <vector>

namespace apps {

/// A project, whose sources are checked together.
struct CheckedProject {
    std::string path, name;
    std::vector<std::string> sources;
    qltoolkit::ConditionalConstants constants;
    basic::DetectedCodePage page;
    bool isForDevices = false;
    std::vector<std::string> libraries;     ///< the GUIDs of its references and control libraries
    std::vector<host::ProjectMember> lines; ///< its members, in the order of the file
    std::string startup;                    ///< "Sub Main", the name of a form, or ""
    std::string resourceFile;               ///< its path; "" if there is none
};

/// Returns the path of a project's resource file, or "".
[[nodiscard]] std::string resourceFileOf(const host::ProjectFile& file, const std::string& folder,
                                         host::PathLookup& lookup);

/// Reads a project file. `given` is its code page, without which it is detected; the sources that are read for this stay
/// in `contents`. Errors go to the caller; 5 for a file that is no project.
[[nodiscard]] CheckedProject readProject(const std::string& path, const std::optional<basic::CodePage>& given,
                                         host::FileContents& contents);
/// As above, for those who do not need the contents.
[[nodiscard]] CheckedProject readProject(const std::string& path, const std::optional<basic::CodePage>& given = {});

} // namespace apps
