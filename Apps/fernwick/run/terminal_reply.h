#pragma once
// Answers that are typed at the terminal.
#include "Apps/fernwick/options/answers.h"
#include "Apps/fernwick/output/console.h"
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// Reads a line; nothing at the end of input. Throws Interrupted after Ctrl+C.
std::optional<std::string> readTerminalLine(Console& console, const std::string& prompt);

/// The answers that a question accepts.
struct ReplyChoices {
    std::vector<Reply> replies;
    /// For an empty line.
    Reply otherwise;
    /// At the end of input.
    Reply harmless;
};

/// Prompts until the first letters of exactly one reply are typed.
Reply askReply(Console& console, const ReplyChoices& choices);

/// A row of a list with the key that selects it.
struct KeyedRow {
    std::string key, text;
};

/// Prints the rows and prompts until the number of a row, or a key for which `isKey` is true, is typed. Returns "" for
/// an empty line and at the end of input.
std::string askKey(Console& console, const std::vector<KeyedRow>& rows,
                   const std::function<bool(const std::string& key)>& isKey);

} // namespace cli
