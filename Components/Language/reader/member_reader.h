#pragma once
// The lines of a description that declare members.
#include "Components/Language/library.h"
#include "Components/Language/reader/line_reader.h"

namespace language {

[[nodiscard]] Member readMember(LineReader& line);
/// A name and its value.
[[nodiscard]] Member readEnumMember(LineReader& line);

} // namespace language
