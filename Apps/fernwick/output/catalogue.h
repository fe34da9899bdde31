#pragma once
// Every message that Fernwick can give, whoever gives it, in one list.
#include "Add-in/platform/message_info.h"
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace cli {

/// By ascending number.
std::span<const fernwick::MessageInfo> catalogue();
/// Null for a number that no message has.
const fernwick::MessageInfo* messageNumbered(std::int32_t number);
/// At most `most` numbers of messages, those next to `number` first.
std::vector<std::int32_t> numbersNear(std::int32_t number, std::size_t most);

/// "error" or "warning".
std::string_view kindOf(const fernwick::MessageInfo& message);

} // namespace cli
