#include "Components/QLToolkit/insight/typed_statement.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/source/characters.h"
#include <algorithm>

namespace qltoolkit {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

std::size_t previousLine(std::string_view text, std::size_t lineBegin) {
    const auto end = lineBegin < 2 ? text.npos : text.rfind('\n', lineBegin - 2);
    return end == text.npos ? 0 : end + 1;
}

bool isContinued(std::string_view line) {
    while (!line.empty() && isBlank(line.back())) line.remove_suffix(1);
    return line.ends_with('_') && (line.size() == 1 || isBlank(line[line.size() - 2]));
}

std::size_t logicalLine(std::string_view text) {
    const auto end = text.rfind('\n');
    std::size_t begin = end == text.npos ? 0 : end + 1;
    while (begin > 0) {
        const auto previous = previousLine(text, begin);
        if (!isContinued(text.substr(previous, begin - previous))) break;
        begin = previous;
    }
    return begin;
}

/// Words after which a parenthesis groups and a point has no object before it.
bool isWordOfSyntax(const TypedToken& token) {
    static constexpr std::string_view kWords[] = {
        "If",     "ElseIf", "While",    "Until",    "And",     "Or",         "Not",    "Xor",       "Eqv",     "Imp",
        "Mod",    "Is",     "Like",     "To",       "Step",    "In",         "Case",   "With",      "Return",  "Let",
        "Set",    "Call",   "Then",     "Else",     "Loop",    "Do",         "For",    "Each",      "Print",   "Open",
        "As",     "New",    "ByVal",    "ByRef",    "Select",  "RaiseEvent", "ReDim",  "Preserve",  "Dim",     "Static",
        "Const",  "Erase",  "GoTo",     "GoSub",    "Resume",  "On",         "Exit",   "End",       "Private", "Public",
        "Friend", "Sub",    "Function", "Property", "Declare", "Event",      "TypeOf", "AddressOf", "Next",    "Write"};
    return std::any_of(std::begin(kWords), std::end(kWords), [&](auto word) { return token.is(word); });
}

} // namespace

bool TypedToken::is(std::string_view word) const { return kind != TypedKind::Text && basic::equalNoCase(text, word); }

TypedStatement::TypedStatement(std::string_view before) : text_(before), lineBegin_(logicalLine(before)) {
    readTokens();
    if (!isInText_) takePartial();
    startStatement();
}

void TypedStatement::readTokens() {
    for (std::size_t at = lineBegin_; at < text_.size() && !isInText_;) {
        if (isBlank(text_[at]))
            ++at;
        else if (text_[at] == '_' && isContinued(text_.substr(at, text_.find('\n', at) - at)))
            ++at;
        else
            at = readToken(at);
    }
}

std::size_t TypedStatement::readToken(std::size_t at) {
    const char c = text_[at];
    std::size_t end = at + 1;
    auto kind = TypedKind::Sign;
    if (c == '\'') {
        isInText_ = true;
        return text_.size();
    }
    if (c == '"' || c == '[') {
        kind = c == '"' ? TypedKind::Text : TypedKind::Word;
        const auto close = text_.find_first_of(c == '"' ? "\"\n" : "]\n", end);
        isInText_ = close == text_.npos;
        end = isInText_ ? text_.size() : close + 1;
    } else if (charIs(c, kNameStart | kForeign)) {
        kind = TypedKind::Word;
        while (end < text_.size() && charIs(text_[end], kNamePart | kForeign)) ++end;
        if (end < text_.size() && (text_[end] == '$' || text_[end] == '%')) ++end;
    } else if ((c >= '0' && c <= '9') || (c == '&' && end < text_.size() && (text_[end] == 'H' || text_[end] == 'h'))) {
        kind = TypedKind::Number;
        while (end < text_.size() && (charIs(text_[end], kNamePart | kForeign) || text_[end] == '.')) ++end;
        isInNumber_ = end == text_.size();
    } else if (c == ':' && end < text_.size() && text_[end] == '=') {
        ++end;
    }
    tokens_.push_back({kind, at, end, text_.substr(at, end - at)});
    const bool isFirst = tokens_.size() == 1 || tokens_[tokens_.size() - 2].text == ":";
    if (isFirst && tokens_.back().is("Rem") && end < text_.size()) isInText_ = true;
    return end;
}

void TypedStatement::takePartial() {
    if (tokens_.empty() || tokens_.back().kind != TypedKind::Word || tokens_.back().end != text_.size()) return;
    partial_ = tokens_.back().text;
    tokens_.pop_back();
}

void TypedStatement::startStatement() {
    const auto starts = [](const TypedToken& token) {
        return token.text == ":" || token.is("Then") || token.is("Else");
    };
    const auto last = std::find_if(tokens_.rbegin(), tokens_.rend(), starts);
    tokens_.erase(tokens_.begin(), last.base());
    if (!tokens_.empty() && tokens_.front().kind == TypedKind::Number) tokens_.erase(tokens_.begin());
}

const TypedToken* TypedStatement::last(std::size_t back) const {
    return back < tokens_.size() ? &tokens_[tokens_.size() - 1 - back] : nullptr;
}

// A point belongs to what is before it unless blanks separate them: f .x passes a member of With.
bool TypedStatement::isAttached(std::size_t token) const {
    if (token == 0) return false;
    const auto gap = text_.substr(tokens_[token - 1].end, tokens_[token].begin - tokens_[token - 1].end);
    return gap.empty() || gap.find('\n') != gap.npos;
}

std::size_t TypedStatement::openingOf(std::size_t closing) const {
    std::size_t depth = 0;
    for (std::size_t at = closing + 1; at-- > 0;) {
        if (tokens_[at].text == ")") ++depth;
        if (tokens_[at].text == "(" && --depth == 0) return at;
    }
    return closing;
}

std::size_t TypedStatement::chainBefore(std::size_t end) const {
    std::size_t at = end;
    while (at > 0) {
        const auto& token = tokens_[at - 1];
        if (token.text == ")") {
            const auto opening = openingOf(at - 1);
            if (opening == at - 1) return end;
            at = opening;
            const bool isCall = at > 0 && (tokens_[at - 1].kind == TypedKind::Word || tokens_[at - 1].text == ")") &&
                                !isWordOfSyntax(tokens_[at - 1]);
            if (isCall) continue;
        } else if (token.kind == TypedKind::Word) {
            const bool isMember = at > 1 && (tokens_[at - 2].text == "." || tokens_[at - 2].text == "!");
            if (!isMember && isWordOfSyntax(token)) return at;
            --at;
        } else {
            return at;
        }
        const bool hasPoint = at > 0 && (tokens_[at - 1].text == "." || tokens_[at - 1].text == "!");
        if (!hasPoint) return at;
        --at;
        if (!isAttached(at)) return at;
    }
    return at;
}

std::string TypedStatement::textOf(std::size_t begin, std::size_t end) const {
    std::string text;
    for (std::size_t at = begin; at < end; ++at) {
        const bool isApart = at > begin && tokens_[at].begin > tokens_[at - 1].end && !isAttached(at);
        text.append(isApart ? " " : "").append(tokens_[at].text);
    }
    return text;
}

std::vector<TypedCall> TypedStatement::calls() const {
    std::vector<TypedCall> calls;
    std::size_t depth = 0;
    for (std::size_t at = tokens_.size(); at-- > 0;) {
        if (tokens_[at].text == ")") ++depth;
        if (tokens_[at].text != "(") continue;
        if (depth > 0) {
            --depth;
            continue;
        }
        const auto begin = chainBefore(at);
        if (begin == at) continue;
        calls.push_back({begin, at, 0, {}});
        count(calls.back(), at + 1);
    }
    addOuterCall(calls);
    return calls;
}

/// A call as a statement, whose arguments have no parentheses.
void TypedStatement::addOuterCall(std::vector<TypedCall>& calls) const {
    if (tokens_.empty() || isWordOfSyntax(tokens_.front())) return;
    std::size_t end = 0;
    while (end < tokens_.size()) {
        const auto& token = tokens_[end];
        const bool isPoint = token.text == "." || token.text == "!";
        const bool isFirst = end == 0 && (token.kind == TypedKind::Word || isPoint);
        const bool afterPoint = end > 0 && (tokens_[end - 1].text == "." || tokens_[end - 1].text == "!");
        if (isFirst || (isPoint && isAttached(end)) || (afterPoint && token.kind == TypedKind::Word)) {
            ++end;
        } else if (token.text == "(" && isAttached(end)) {
            std::size_t depth = 0, close = end;
            for (; close < tokens_.size(); ++close) {
                depth += tokens_[close].text == "(";
                if (tokens_[close].text == ")" && --depth == 0) break;
            }
            if (close == tokens_.size()) return;
            end = close + 1;
        } else {
            break;
        }
    }
    const auto gapEnd = end < tokens_.size() ? tokens_[end].begin : text_.size() - partial_.size();
    const bool hasArguments = end > 0 && gapEnd > tokens_[end - 1].end;
    if (!hasArguments || (end < tokens_.size() && (tokens_[end].text == "=" || tokens_[end].is("As")))) return;
    calls.push_back({0, end, 0, {}});
    count(calls.back(), end);
}

void TypedStatement::count(TypedCall& call, std::size_t first) const {
    std::size_t depth = 0, begin = first;
    for (std::size_t at = first; at < tokens_.size(); ++at) {
        if (tokens_[at].text == "(") ++depth;
        if (tokens_[at].text == ")" && depth > 0) --depth;
        if (tokens_[at].text != "," || depth > 0) continue;
        ++call.argument;
        begin = at + 1;
    }
    if (begin + 1 < tokens_.size() && tokens_[begin + 1].text == ":=") call.named = tokens_[begin].text;
}

} // namespace qltoolkit
