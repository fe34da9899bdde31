#pragma once
#include "Basic/code_page.h"
#include <optional>
#include <string>

namespace cli {

/// Returns the name by which a project's images and packages are called, read from its file without opening the project.
/// `given` is the file's code page, without which it is detected. Refusal 1 if it is not a project file; errors of reading
/// it.
std::string projectNameIn(const std::string& path, const std::optional<basic::CodePage>& given);

} // namespace cli
