#include "Apps/fernwick/run/terminal_reply.h"
#include "Apps/fernwick/run/interruption.h"
#include "Basic/case_folding.h"
#include <algorithm>
#include <fmt/format.h>
#include <poll.h>
#include <unistd.h>

namespace cli {

namespace {

/// Milliseconds after which Ctrl+C is noticed; it does not end a read.
constexpr int kPollMilliseconds = 100;

std::string trimmed(std::string_view text) {
    const auto begin = text.find_first_not_of(" \t\r");
    if (begin == text.npos) return {};
    return std::string(text.substr(begin, text.find_last_not_of(" \t\r") + 1 - begin));
}

std::string wordsOf(const std::vector<Reply>& replies) {
    std::string words;
    for (const auto reply : replies) words += (words.empty() ? "" : "/") + basic::foldCase(replyName(reply));
    return words;
}

std::optional<Reply> replyTyped(const std::vector<Reply>& replies, const std::string& typed) {
    const auto begins = [&](Reply reply) { return basic::startsWithNoCase(replyName(reply), typed); };
    const auto found = std::find_if(replies.begin(), replies.end(), begins);
    return std::count_if(replies.begin(), replies.end(), begins) == 1 ? std::optional(*found) : std::nullopt;
}

/// Returns the row with this number, from 1.
const KeyedRow* rowNumbered(const std::vector<KeyedRow>& rows, const std::string& typed) {
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (typed == std::to_string(row + 1)) return &rows[row];
    return nullptr;
}

} // namespace

std::optional<std::string> readTerminalLine(Console& console, const std::string& prompt) {
    checkInterrupt();
    console.prompt(prompt);
    std::string line;
    for (;;) {
        pollfd input{STDIN_FILENO, POLLIN, 0};
        const int ready = ::poll(&input, 1, kPollMilliseconds);
        checkInterrupt();
        if (ready <= 0) continue;
        char c = 0;
        if (::read(STDIN_FILENO, &c, 1) != 1) {
            console.err("");
            return std::nullopt;
        }
        if (c == '\n') return line;
        line += c;
    }
}

Reply askReply(Console& console, const ReplyChoices& choices) {
    const auto words = wordsOf(choices.replies);
    const auto prompt = fmt::format("[{}, Return for {}] ", words, replyName(choices.otherwise));
    for (;;) {
        const auto line = readTerminalLine(console, prompt);
        if (!line) return choices.harmless;
        const auto typed = trimmed(*line);
        if (typed.empty()) return choices.otherwise;
        if (const auto reply = replyTyped(choices.replies, typed)) return *reply;
    }
}

std::string askKey(Console& console, const std::vector<KeyedRow>& rows,
                   const std::function<bool(const std::string& key)>& isKey) {
    for (std::size_t row = 0; row < rows.size(); ++row)
        console.err(fmt::format("  {}  {:<20}  {}", row + 1, rows[row].key, rows[row].text));
    for (;;) {
        const auto line = readTerminalLine(console, "[number or key, Return for Cancel] ");
        const auto typed = line ? trimmed(*line) : std::string();
        if (typed.empty()) return {};
        if (const auto* row = rowNumbered(rows, typed)) return row->key;
        for (const auto& row : rows)
            if (basic::equalNoCase(row.key, typed)) return row.key;
        if (isKey(typed)) return typed;
    }
}

} // namespace cli
