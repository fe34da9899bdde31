#pragma once
// A compiled project as bytes.
#include "Components/Image/code/code_image.h"
#include "Components/QLToolkit/check_results.h"
#include "Components/QLToolkit/code/code_generator.h"
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

struct StoredProgram {
    qltoolkit::CheckResults results;
    std::vector<qltoolkit::EntryPoint> entries;
    image::CodeImage code;
};

std::string bytesOf(const StoredProgram& program);

/// Nothing for bytes that bytesOf did not write. The code is not verified.
std::optional<StoredProgram> storedProgramOf(std::string_view bytes);

} // namespace cli
