#pragma once
// The description of a numbered message, whatever its source.
#include <cstdint>
#include <string_view>

namespace fernwick {

/// One entry of a table of messages, shown by `explain`, the help pages and the documentation.
struct MessageInfo {
    /// As it is stored and shown.
    std::int32_t number;
    bool isError;
    /// The text, with placeholders such as "{file}" for values.
    std::string_view text;
    /// When it is reported.
    std::string_view meaning;
    /// An example that causes it: lines of code, of a project file or a command.
    std::string_view example;
    /// What to do.
    std::string_view remedy;
};

} // namespace fernwick
