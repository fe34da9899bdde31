#pragma once
// All messages of the compiler, the add-in and the pipes in one list.
#include "Add-in/platform/message_info.h"
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace cli {

/// In ascending order of the numbers.
std::span<const fernwick::MessageInfo> catalogue();
/// Null for an unknown number.
const fernwick::MessageInfo* messageNumbered(std::int32_t number);
/// At most `most` known numbers, the nearest to `number` first.
std::vector<std::int32_t> numbersNear(std::int32_t number, std::size_t most);

/// "error" or "warning".
std::string_view kindOf(const fernwick::MessageInfo& message);

} // namespace cli
