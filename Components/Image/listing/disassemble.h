#pragma once
// Code as text, for people who look for an error in the compiler or the runtime.
#include "Components/Image/code/code_image.h"
#include <string>

namespace image {

/// Returns the variables and instructions of a procedure. Any code can be shown, also what a verifier refuses: what does not
/// exist is "?". Nothing in the text can control a terminal.
[[nodiscard]] std::string disassemble(const CodeImage& code, std::uint32_t procedure);

} // namespace image
