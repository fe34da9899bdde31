#pragma once
// What is known of a message's number, whoever gives it.
#include <cstdint>
#include <string_view>

namespace fernwick {

/// One entry of a table of messages. `explain`, the help pages and the documentation show it.
struct MessageInfo {
    /// As it is stored and shown.
    std::int32_t number;
    bool isError;
    /// The text, with placeholders such as "{file}" for values.
    std::string_view text;
    /// When it comes.
    std::string_view meaning;
    /// What provokes it: lines of code, of a project file or a command.
    std::string_view example;
    /// What to do.
    std::string_view remedy;
};

} // namespace fernwick
