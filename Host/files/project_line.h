#pragma once
// One line of a project file: a section head, a member or a setting.
#include "Host/files/project_keys.h"
#include "Host/files/text_file.h"
#include <optional>
#include <string>
#include <string_view>

namespace host {

struct KeyAndValue {
    std::string_view key, value;
};

/// Returns the section's name if `line` is a section head.
std::optional<std::string_view> sectionHead(std::string_view line) noexcept;

/// Divides a line at its first "="; nothing for a line without one.
std::optional<KeyAndValue> splitKeyLine(std::string_view line) noexcept;

/// The text after "=".
std::string_view valueOf(const TextLine& line) noexcept;

/// The delimiter around a setting's value: a quote, or the "!" that one tool writes instead; 0 for none.
char delimiterAround(std::string_view value) noexcept;

/// The value between two delimiters; as it is for delimiter 0.
std::string delimited(std::string_view value, char delimiter);

/// The text after "=" in the line of a member.
std::string memberLineValue(MemberKind kind, std::string_view name, std::string_view value);

/// Error 5 for a text with a line break.
void refuseLineBreak(std::string_view text);

} // namespace host
