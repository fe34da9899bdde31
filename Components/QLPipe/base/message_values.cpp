#include "Components/QLPipe/base/message_values.h"
#include "Basic/printable.h"
#include <algorithm>

namespace qlpipe {

std::string fillIn(std::string_view pattern, MessageValues values) {
    std::string text;
    while (!pattern.empty()) {
        const auto begin = pattern.find('{'), end = pattern.find('}', begin);
        text += pattern.substr(0, begin);
        if (end == pattern.npos) break;
        const auto name = pattern.substr(begin + 1, end - begin - 1);
        const auto* value = std::ranges::find(values, name, &MessageValue::name);
        text +=
            value == values.end() ? std::string(pattern.substr(begin, end + 1 - begin)) : basic::printable(value->text);
        pattern.remove_prefix(end + 1);
    }
    return text;
}

} // namespace qlpipe
