#pragma once
// What is known of the messages that the add-in itself gives.
#include "Add-in/platform/message_info.h"
#include <span>

namespace fernwick {

/// One row for each number of message_numbers.h, in ascending order.
std::span<const MessageInfo> buildMessages();

} // namespace fernwick
