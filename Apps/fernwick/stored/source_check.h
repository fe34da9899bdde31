#pragma once
// Checks of single source files.
#include "Apps/fernwick/output/report.h"
#include "Basic/code_page.h"
#include "Basic/runtime_error.h"
#include "Components/QLToolkit/check.h"
#include <string>

namespace cli {

/// The result for a file whose reading failed.
qltoolkit::CheckResult unreadSource(const std::string& path, const basic::ErrObject& why);
/// Reads and checks a file.
qltoolkit::CheckResult checkSourceFile(const std::string& path, const basic::CodePage& page);
Message messageOfDiagnostic(const qltoolkit::Diagnostic& diagnostic);

} // namespace cli
