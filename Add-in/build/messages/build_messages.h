#pragma once
// The table of the messages that the add-in itself issues.
#include "Add-in/platform/message_info.h"
#include <span>

namespace fernwick {

/// One row for each number of message_numbers.h, in ascending order.
std::span<const MessageInfo> buildMessages();

} // namespace fernwick
