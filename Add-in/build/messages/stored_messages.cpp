#include "Add-in/build/messages/stored_messages.h"
#include "Add-in/build/messages/compile_messages.h"
#include "Basic/conversions.h"
#include "Basic/runtime_error.h"
#include "Basic/text.h"
#include "Basic/text_search.h"
#include <fmt/format.h>
#include <optional>

namespace fernwick {

namespace {

constexpr std::size_t kFields = 5, kFieldsWithoutNumber = 4;

std::int32_t numberOrZero(const std::string& text) {
    std::int32_t number = 0;
    (void)basic::attempt([&] { number = basic::CLng(text); });
    return number;
}

std::optional<StoredMessage> parsed(const std::string& value, int typeBefore) {
    const auto fields = basic::Split(value, "|", kFields);
    if (fields.size() < kFieldsWithoutNumber) return std::nullopt;
    StoredMessage message{typeBefore, fields[1], numberOrZero(fields[2]), fields[3], 0};
    if (fields[0] == "ERROR") message.type = ERROR_MSG;
    if (fields[0] == "WARNING") message.type = WARNING_MSG;
    if (fields.size() == kFields) message.errorNumber = numberOrZero(fields[4]);
    return message;
}

} // namespace

std::string storedMessageKey(std::int32_t number) { return fmt::format("Error{}", number); }

std::int32_t storedMessageCount(const basic::Ref<vbide::VBProject>& project) {
    std::int32_t count = 0;
    (void)basic::attempt([&] { count = basic::CLng(project->ReadProperty(kErrorsSection, kNumErrors)); });
    return count >= 0 && count <= kMostStoredMessages ? count : 0;
}

std::vector<StoredMessage> storedMessages(const basic::Ref<vbide::VBProject>& project) {
    std::vector<StoredMessage> messages;
    int type = 0;
    for (std::int32_t number = 1, last = storedMessageCount(project); number <= last; ++number) {
        std::optional<StoredMessage> message;
        (void)basic::attempt(
            [&] { message = parsed(project->ReadProperty(kErrorsSection, storedMessageKey(number)), type); });
        if (!message) continue;
        type = message->type;
        messages.push_back(std::move(*message));
    }
    return messages;
}

} // namespace fernwick
