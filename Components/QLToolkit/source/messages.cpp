#include "Components/QLToolkit/source/messages.h"
#include <algorithm>

namespace qltoolkit {

const MessageInfo& messageInfo(Message message) {
    return *std::ranges::lower_bound(allMessages(), message, {}, &MessageInfo::message);
}

std::string messageText(Message message, std::string_view detail) {
    std::string text(messageInfo(message).text);
    const auto begin = text.find('{'), end = text.find('}');
    if (end != std::string::npos) text.replace(begin, end + 1 - begin, detail);
    return text;
}

} // namespace qltoolkit
