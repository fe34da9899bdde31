#include "Basic/like.h"
#include "Basic/runtime_error.h"
#include "Basic/utf8.h"
#include <vector>

namespace basic {

namespace {

struct LikeRange {
    char32_t first, last;
};

/// A pattern for one character, or for any number of them.
struct LikeToken {
    bool star = false;
    bool others = false; // matches characters outside the ranges
    std::vector<LikeRange> ranges;

    bool fits(char32_t character) const {
        for (const LikeRange& range : ranges) {
            if (character >= range.first && character <= range.last) return !others;
        }
        return others;
    }
};

std::u32string charactersOf(std::string_view text, VbCompareMethod compare) {
    std::u32string characters;
    characters.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t first = at;
        const char32_t character = nextCharacter(text, at);
        if (character == kNoCharacter)
            characters += 0x110000 + static_cast<unsigned char>(text[first]);
        else
            characters += compare == vbTextCompare ? foldCharacter(character) : character;
    }
    return characters;
}

[[noreturn]] void refusePattern() { throw RuntimeError(kInvalidPatternString); }

/// Parses a list. `at` is after its "[" and moves after its "]".
LikeToken parseList(std::u32string_view pattern, std::size_t& at) {
    LikeToken token;
    const std::size_t end = pattern.find(U']', at);
    if (end == pattern.npos) refusePattern();
    std::u32string_view list = pattern.substr(at, end - at);
    at = end + 1;
    token.others = !list.empty() && list.front() == U'!';
    if (token.others) list.remove_prefix(1);
    for (std::size_t i = 0; i < list.size();) {
        const bool range = i + 2 < list.size() && list[i + 1] == U'-';
        token.ranges.push_back({list[i], list[range ? i + 2 : i]});
        if (token.ranges.back().first > token.ranges.back().last) refusePattern();
        i += range ? 3 : 1;
        if (range && i + 1 < list.size() && list[i] == U'-') refusePattern();
    }
    return token;
}

std::vector<LikeToken> parsePattern(std::u32string_view pattern) {
    std::vector<LikeToken> tokens;
    for (std::size_t at = 0; at < pattern.size();) {
        const char32_t c = pattern[at++];
        if (c == U'?')
            tokens.push_back({false, true, {}});
        else if (c == U'#')
            tokens.push_back({false, false, {{U'0', U'9'}}});
        else if (c == U'*') {
            if (tokens.empty() || !tokens.back().star) tokens.push_back({true, false, {}});
        } else if (c != U'[')
            tokens.push_back({false, false, {{c, c}}});
        else if (LikeToken list = parseList(pattern, at); list.others || !list.ranges.empty())
            tokens.push_back(std::move(list));
    }
    return tokens;
}

/// Backtracks only to the last star; earlier ones cannot lead to further matches.
bool matchTokens(std::u32string_view text, const std::vector<LikeToken>& tokens) {
    constexpr std::size_t kNoStar = static_cast<std::size_t>(-1);
    std::size_t at = 0, token = 0, star = kNoStar, starAt = 0;
    while (at < text.size()) {
        if (token < tokens.size() && tokens[token].star) {
            star = token++;
            starAt = at;
        } else if (token < tokens.size() && tokens[token].fits(text[at])) {
            ++at;
            ++token;
        } else if (star != kNoStar) {
            token = star + 1;
            at = ++starAt;
        } else
            return false;
    }
    return token == tokens.size() || (token + 1 == tokens.size() && tokens[token].star);
}

} // namespace

bool likeCharacters(std::u32string_view text, std::u32string_view pattern) {
    return matchTokens(text, parsePattern(pattern));
}

bool Like(std::string_view text, std::string_view pattern, VbCompareMethod compare) {
    return likeCharacters(charactersOf(text, compare), charactersOf(pattern, compare));
}

} // namespace basic
