#include "Host/files/form_line.h"
#include "Basic/case_folding.h"
#include "Host/files/property_value.h"
#include "Host/files/text_file.h"

namespace host {
namespace {

constexpr std::string_view kFormBlanks = " \t";

std::string_view leftTrimmedText(std::string_view text) {
    const auto first = text.find_first_not_of(kFormBlanks);
    return first == std::string_view::npos ? text.substr(text.size()) : text.substr(first);
}

std::string_view rightTrimmedText(std::string_view text) {
    const auto last = text.find_last_not_of(kFormBlanks);
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// The first word of `text`, taken from it together with the blanks behind.
std::string_view takeFormWord(std::string_view& text) {
    const auto end = std::min(text.find_first_of(kFormBlanks), text.size());
    const auto word = text.substr(0, end);
    text = leftTrimmedText(text.substr(end));
    return word;
}

bool parseKeyword(FormLine& line, std::string_view body) {
    using Kind = FormLine::Kind;
    auto rest = body;
    const auto word = takeFormWord(rest);
    rest = rightTrimmedText(rest);
    if (rest.substr(0, 1) == "=") return false; // a property may be named like a keyword
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

void parseProperty(FormLine& line, std::string_view body) {
    const auto equals = body.find('=');
    if (equals == std::string_view::npos) return;
    const auto key = rightTrimmedText(body.substr(0, equals));
    if (key.empty() || key.find_first_of(" \t\"") != std::string_view::npos) return;
    line.kind = FormLine::Kind::Property;
    line.name = key;
    auto rest = leftTrimmedText(body.substr(equals + 1));
    line.value = rest.substr(0, literalLength(rest));
    rest = leftTrimmedText(rest.substr(line.value.size()));
    line.hasComment = !rest.empty() && rest[0] == '\'';
    if (line.hasComment) line.comment = rightTrimmedText(rest.substr(1));
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
    const auto body = leftTrimmedText(text);
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

bool beginsWithWord(std::string_view line, std::string_view word) {
    return line.size() > word.size() && basic::equalNoCase(line.substr(0, word.size()), word) &&
           kFormBlanks.find(line[word.size()]) != std::string_view::npos;
}

} // namespace host
