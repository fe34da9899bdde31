#pragma once
#include "Add-in/platform/message_info.h"
#include <string>
#include <vector>

namespace cli {

/// Returns the text of docs/messages.md.
std::string markdownOf(const std::vector<fernwick::MessageInfo>& messages);

} // namespace cli
