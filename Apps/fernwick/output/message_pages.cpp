#include "Apps/fernwick/output/message_pages.h"
#include "Apps/fernwick/output/catalogue.h"
#include "Apps/fernwick/output/wrapped_text.h"
#include <fmt/format.h>

namespace cli {

namespace {

using fernwick::MessageInfo;

constexpr std::size_t kPageWidth = 120;

constexpr const char* kHead = R"(# Messages

What Fernwick says, by number; %1, %2 and so on stand for what differs. `fernwick explain NUMBER` prints one of these
entries, F1 in the messages window opens its page. Written by `scripts/make-message-pages` from the tables of the messages.
)";

/// What the format would take for its own.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (std::string_view("\\`*_[]<>#|").find(c) != std::string_view::npos) result += '\\';
        result += c;
    }
    return result;
}

std::string codeBlock(std::string_view lines) {
    std::string text = "\n    ";
    for (const char c : lines) text += c == '\n' ? std::string("\n    ") : std::string(1, c);
    return text + "\n";
}

std::string sectionOf(const MessageInfo& message) {
    const auto paragraph = [](const std::string& text) { return "\n" + wrapped(text, kPageWidth) + "\n"; };
    std::string section = fmt::format("\n## {}\n", message.number);
    section += paragraph(fmt::format("**{}:** {}", message.isError ? "Error" : "Warning", escaped(message.text)));
    section += paragraph(escaped(message.meaning));
    if (!message.example.empty()) section += codeBlock(message.example);
    section += paragraph("Remedy: " + escaped(message.remedy));
    return section;
}

} // namespace

std::string markdownOf(const std::vector<MessageInfo>& messages) {
    std::string page = kHead;
    for (const auto& message : messages) page += sectionOf(message);
    return page;
}

} // namespace cli
