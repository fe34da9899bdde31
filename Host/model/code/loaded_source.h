#pragma once
// Reading the source file of a component.
#include "Add-in/platform/host_project.h"
#include "Host/files/project_keys.h"
#include "Host/files/text_file.h"
#include "Host/model/code/source_file.h"
#include <optional>
#include <string>

namespace host {

struct LoadedSource {
    SourceFile source;
    vbide::vbext_ComponentType type;
    std::string name;               ///< "" if the source has none
    std::optional<FileStamp> stamp; ///< none if it was not read from a file
};

/// Reads a source file. `usual` is the code page of files that are not UTF-8. Errors: as readFile; 321 if it is not a
/// source of this kind.
LoadedSource readSource(MemberKind kind, const std::string& path, const basic::CodePage& usual);

/// Uses `bytes` as the contents of a source file; `path` is only for messages. Error 321 as above.
LoadedSource sourceOf(MemberKind kind, std::string bytes, const std::string& path, const basic::CodePage& usual);

} // namespace host
