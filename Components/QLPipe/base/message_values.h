#pragma once
// Named values in the texts of messages.
#include <initializer_list>
#include <string>
#include <string_view>

namespace qlpipe {

/// The value that replaces "{name}" in a text.
struct MessageValue {
    std::string_view name;
    std::string text;
};

using MessageValues = std::initializer_list<MessageValue>;

/// Returns the text with its values filled in, as basic::printable shows them, because they come from packages, devices
/// and file names. Braces inside a value have no meaning.
[[nodiscard]] std::string fillIn(std::string_view pattern, MessageValues values);

} // namespace qlpipe
