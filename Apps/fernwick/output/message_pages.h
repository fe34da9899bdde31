#pragma once
// The messages as a page of the documentation.
#include "Add-in/platform/message_info.h"
#include <string>
#include <vector>

namespace cli {

/// docs/messages.md.
std::string markdownOf(const std::vector<fernwick::MessageInfo>& messages);

} // namespace cli
