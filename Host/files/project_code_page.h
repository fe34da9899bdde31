#pragma once
// The code page of a project on disk.
#include "Basic/detection/code_page_detection.h"
#include "Host/files/text_file.h"
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// The key by which a project file sets its code page; its value is a number.
inline constexpr std::string_view kCodePageKey = "CodePage";

/// Returns the code page of a project or group file with these bytes in `folder`, from this file and the components of a
/// project, which stay in `contents`. Files that cannot be read are ignored. `given` is returned as it is.
basic::DetectedCodePage codePageOfProject(std::string_view bytes, const std::string& folder,
                                          const std::optional<basic::CodePage>& given, FileContents& contents);
/// As above, for those who do not need the contents.
basic::DetectedCodePage codePageOfProject(std::string_view bytes, const std::string& folder,
                                          const std::optional<basic::CodePage>& given = {});

/// As codePageOfProject, for a source file without a project.
basic::DetectedCodePage codePageOfSource(std::string_view bytes, const std::optional<basic::CodePage>& given = {});

/// Returns how the page was determined, such as "according to the Charset of its forms".
std::string_view textOf(basic::CodePageReason reason) noexcept;

} // namespace host
