#pragma once
#include "Apps/fernwick/output/console.h"
#include "Basic/detection/code_page_detection.h"
#include <string>

namespace cli {

/// Prints in which code page a project or file is read. A page that was guessed and matters is a note, others are details;
/// the default page of ASCII files is not mentioned.
void reportCodePage(Console& console, const std::string& file, const basic::DetectedCodePage& detected);

} // namespace cli
