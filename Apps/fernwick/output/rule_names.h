#pragma once
// The names of message numbers outside of this program.
#include "Add-in/platform/message_info.h"
#include <optional>
#include <string>
#include <string_view>

namespace cli {

/// Returns "FW1300" for 1300.
std::string ruleId(std::int32_t number);
/// Reads a number with or without "FW", letter case ignored; nothing for any other text.
std::optional<std::int32_t> ruleNumber(std::string_view text);
/// Returns a name made of the first words of the message's text: "TheFileDoesNotExist".
std::string ruleName(const fernwick::MessageInfo& message);

} // namespace cli
