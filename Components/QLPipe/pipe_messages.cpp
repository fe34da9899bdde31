#include "Components/QLPipe/pipe_messages.h"
#include "Components/QLPipe/linux_handheld/ssh_messages.h"

namespace qlpipe {
namespace {

constexpr bool kError = true;

// number, error, text, meaning, example, remedy
constexpr fernwick::MessageInfo kGeneralMessages[] = {
    {kLibraryMissing, kError, "The library %1 is not installed. Install it with: apt-get install %2",
     "Packages and devices need libraries that the rest of the system does without.", "fernwick package Hello.vbp",
     "Install the Debian package that the message names."},
};

} // namespace

std::vector<std::span<const fernwick::MessageInfo>> pipeMessages() { return {kGeneralMessages, sshMessages()}; }

std::string messageText(std::int32_t number, std::initializer_list<std::string> values) {
    for (const auto table : pipeMessages())
        for (const auto& message : table) {
            if (message.number != number) continue;
            std::string text;
            for (std::size_t i = 0; i < message.text.size(); ++i) {
                const std::size_t value = i + 1 < message.text.size() ? std::size_t(message.text[i + 1] - '1') : 9;
                if (message.text[i] == '%' && value < values.size())
                    text += values.begin()[value], ++i;
                else
                    text += message.text[i];
            }
            return text;
        }
    return {};
}

TransferError transferError(std::int32_t number, std::initializer_list<std::string> values) {
    return {number, messageText(number, values)};
}

} // namespace qlpipe
