#include "Host/files/form_line.h"
#include "Basic/case_folding.h"
#include "Host/files/property_value.h"
#include "Host/files/text_file.h"
#include "Host/files/text_parts.h"
#include <fmt/core.h>

namespace host {
namespace {

constexpr std::size_t kKeyWidth = 16, kBooleanWidth = 4;
constexpr std::string_view kAfterEquals = "   ";

/// Removes the first word and the blanks after it from `text` and returns the word.
std::string_view takeFormWord(std::string_view& text) {
    const auto end = std::min(text.find_first_of(kBlanks), text.size());
    const auto word = text.substr(0, end);
    text = trimLeft(text.substr(end));
    return word;
}

bool parseKeyword(FormLine& line, std::string_view body) {
    using Kind = FormLine::Kind;
    auto rest = body;
    const auto word = takeFormWord(rest);
    rest = trimRight(rest);
    if (rest.substr(0, 1) == "=") return false; // a property named like a keyword
    if (basic::equalNoCase(word, "Begin")) {
        line.kind = Kind::Begin;
        line.type = takeFormWord(rest);
        line.name = rest;
    } else if (basic::equalNoCase(word, "BeginProperty")) {
        line.kind = Kind::BeginProperty;
        line.name = takeFormWord(rest);
        line.type = rest;
    } else if (basic::equalNoCase(word, "End") && rest.empty()) {
        line.kind = Kind::End;
    } else if (basic::equalNoCase(word, "EndProperty") && rest.empty()) {
        line.kind = Kind::EndProperty;
    } else {
        return false;
    }
    return true;
}

/// Literal and comment as the designer writes them: Booleans are padded to 4 columns, others are followed by two
/// blanks.
std::string withComment(std::string_view literal, std::string_view comment) {
    std::string out(literal);
    if (comment.empty()) return out;
    const bool boolean = comment == "True" || comment == "False";
    out.append(boolean && out.size() < kBooleanWidth ? kBooleanWidth - out.size() : 2, ' ');
    return out.append("'").append(comment);
}

void parseProperty(FormLine& line, std::string_view body) {
    const auto equals = body.find('=');
    if (equals == std::string_view::npos) return;
    const auto key = trimRight(body.substr(0, equals));
    if (key.empty() || key.find_first_of(" \t\"") != std::string_view::npos) return;
    line.kind = FormLine::Kind::Property;
    line.name = key;
    auto rest = trimLeft(body.substr(equals + 1));
    line.value = rest.substr(0, literalLength(rest));
    rest = trimLeft(rest.substr(line.value.size()));
    line.hasComment = !rest.empty() && rest[0] == '\'';
    if (line.hasComment) line.comment = trimRight(rest.substr(1));
}

} // namespace

std::string_view takeWholeLine(std::string_view& rest) {
    const auto before = rest;
    LineEnd end = LineEnd::None;
    takeLine(rest, end);
    return before.substr(0, before.size() - rest.size());
}

std::string_view lineText(std::string_view wholeLine) {
    LineEnd end = LineEnd::None;
    return wholeLine.empty() ? wholeLine : takeLine(wholeLine, end);
}

FormLine parseFormLine(std::string_view whole) {
    FormLine line;
    const auto text = lineText(whole);
    const auto body = trimLeft(text);
    line.indent = text.substr(0, text.size() - body.size());
    if (body.empty()) {
        line.kind = FormLine::Kind::Blank;
    } else if (body[0] == '\'') {
        line.kind = FormLine::Kind::Comment;
    } else if (!parseKeyword(line, body)) {
        parseProperty(line, body);
    }
    return line;
}

std::string_view lineEndOf(std::string_view wholeLine) { return wholeLine.substr(lineText(wholeLine).size()); }

std::string propertyLineText(std::string_view key, std::string_view literal, std::string_view comment) {
    return fmt::format("{:<{}}={}{}", key, kKeyWidth, kAfterEquals, withComment(literal, comment));
}

std::string blockLineText(std::string_view keyword, std::string_view first, std::string_view second) {
    return fmt::format("{} {} {}{}", keyword, first, second, second.empty() ? "" : " ");
}

std::string rewrittenLine(std::string_view whole, std::string_view literal, std::string_view comment) {
    const auto value = parseFormLine(whole).value;
    std::string out(value.empty() ? whole.substr(0, whole.find('=') + 1)
                                  : whole.substr(0, std::size_t(value.data() - whole.data())));
    if (value.empty()) out += kAfterEquals;
    return out.append(withComment(literal, comment)).append(lineEndOf(whole));
}

bool beginsWithWord(std::string_view line, std::string_view word) {
    return line.size() > word.size() && basic::equalNoCase(line.substr(0, word.size()), word) &&
           kBlanks.find(line[word.size()]) != std::string_view::npos;
}

} // namespace host
