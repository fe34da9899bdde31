#include "Host/model/code/statement_reader.h"
#include "Host/files/text_parts.h"
#include <algorithm>

namespace host {
namespace {

bool endsContinued(std::string_view text) noexcept {
    return text.size() >= 2 && text.back() == '_' && kBlanks.find(text[text.size() - 2]) != kBlanks.npos;
}

std::string_view takeBracketedName(std::string_view& rest) noexcept {
    const auto length = std::min(rest.size(), rest.find(']'));
    const auto name = rest.substr(1, length - 1);
    rest.remove_prefix(std::min(rest.size(), length + 1));
    return name;
}

std::size_t wordLength(std::string_view rest) noexcept {
    if (rest.front() == '"') return std::min(rest.size(), std::min(rest.size(), rest.find('"', 1)) + 1);
    const auto end = std::find_if_not(rest.begin(), rest.end(), isNameCharacter);
    return std::max<std::size_t>(1, std::size_t(end - rest.begin()));
}

} // namespace

bool isNameCharacter(char c) noexcept {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || (c & 0x80);
}

std::string_view takeWord(std::string_view& rest) noexcept {
    rest = trimBlanks(rest);
    if (rest.empty() || rest.front() == '\'') return rest = {};
    if (rest.front() == '[') return takeBracketedName(rest);
    const auto word = rest.substr(0, wordLength(rest));
    rest.remove_prefix(word.size());
    return word;
}

bool skipToComma(std::string_view& rest) noexcept {
    int depth = 0;
    for (auto word = takeWord(rest); !word.empty(); word = takeWord(rest)) {
        if (word == "(") ++depth;
        if (word == ")") --depth;
        if (word == ":" && depth == 0) return false;
        if (word == "," && depth == 0) return true;
    }
    return false;
}

bool StatementReader::next() {
    if (line_ >= count_) return false;
    first_ = line_ + 1;
    text_ = code_.line(++line_);
    while (endsContinued(text_) && line_ < count_) {
        text_.pop_back();
        text_ += code_.line(++line_);
    }
    return true;
}

} // namespace host
