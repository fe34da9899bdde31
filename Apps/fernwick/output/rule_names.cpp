#include "Apps/fernwick/output/rule_names.h"
#include "Basic/case_folding.h"
#include <cctype>
#include <charconv>

namespace cli {

namespace {

constexpr std::string_view kPrefix = "FW";
constexpr int kWordsOfName = 8;

/// Returns the beginning of the message's text up to a pause, without placeholders.
std::string firstClause(std::string_view text) {
    std::string plain;
    bool inside = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '{') inside = true;
        if (!inside) plain += text[i];
        if (text[i] == '}') inside = false;
        if (text.substr(i, 2) == ". " || text.substr(i, 2) == "; " || text.substr(i, 2) == ", ") break;
    }
    return plain;
}

} // namespace

std::string ruleId(std::int32_t number) { return std::string(kPrefix) + std::to_string(number); }

std::optional<std::int32_t> ruleNumber(std::string_view text) {
    if (basic::startsWithNoCase(text, kPrefix)) text.remove_prefix(kPrefix.size());
    std::int32_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

std::string ruleName(const fernwick::MessageInfo& message) {
    std::string name;
    int words = 0;
    bool begins = true;
    for (const unsigned char c : firstClause(message.text)) {
        if (c == '\'') continue; // as in "file's"
        const bool isLetter = std::isalnum(c) != 0;
        if (isLetter && begins && ++words > kWordsOfName) break;
        if (isLetter) name += begins ? char(std::toupper(c)) : char(c);
        begins = !isLetter;
    }
    return name;
}

} // namespace cli
