#include "Components/Language/reader/line_reader.h"
#include <stdexcept>

namespace language {
namespace {

bool isLetterOrDigit(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

} // namespace

void LineReader::skipBlanks() {
    while (at_ < line_.size() && (line_[at_] == ' ' || line_[at_] == '\t' || line_[at_] == '\r')) ++at_;
}

std::string_view LineReader::help() const {
    if (at_ == line_.size()) return {};
    const auto begin = line_.find_first_not_of(" '", at_);
    return begin == std::string_view::npos ? std::string_view() : line_.substr(begin);
}

bool LineReader::accept(char sign) {
    if (at_ == line_.size() || line_[at_] != sign) return false;
    ++at_;
    skipBlanks();
    return true;
}

void LineReader::expect(char sign) {
    if (!accept(sign)) fail(std::string("expected \"") + sign + '"');
}

bool LineReader::acceptWord(std::string_view word) {
    if (!line_.substr(at_).starts_with(word)) return false;
    const auto end = at_ + word.size();
    if (end < line_.size() && isLetterOrDigit(line_[end])) return false;
    at_ = end;
    skipBlanks();
    return true;
}

std::string_view LineReader::name() {
    const auto begin = at_;
    const bool bracketed = at_ < line_.size() && line_[at_] == '[';
    while (at_ < line_.size() && (isLetterOrDigit(line_[at_]) || line_[at_] == '.' || (bracketed && at_ == begin)))
        ++at_;
    if (bracketed && at_ < line_.size() && line_[at_] == ']') ++at_;
    if (at_ < line_.size() && line_[at_] == '$' && at_ != begin) ++at_;
    if (at_ == begin) fail("expected a name");
    const auto found = line_.substr(begin, at_ - begin);
    skipBlanks();
    return found;
}

std::string_view LineReader::quoted() {
    if (at_ == line_.size() || line_[at_] != '"') fail("expected a text in quotation marks");
    const auto end = line_.find('"', at_ + 1);
    if (end == std::string_view::npos) fail("a quotation mark is missing");
    const auto found = line_.substr(at_ + 1, end - at_ - 1);
    at_ = end + 1;
    skipBlanks();
    return found;
}

void LineReader::parentheses() {
    const auto end = line_.find(')', at_);
    if (end == std::string_view::npos) fail("a parenthesis is missing");
    at_ = end + 1;
}

void LineReader::term() {
    if (at_ < line_.size() && line_[at_] == '"') {
        quoted();
        return;
    }
    const auto begin = at_;
    while (at_ < line_.size() &&
           (isLetterOrDigit(line_[at_]) || std::string_view("-&.#").find(line_[at_]) != line_.npos))
        ++at_;
    if (at_ == begin) fail("expected a value");
    if (at_ < line_.size() && line_[at_] == '(') parentheses();
    skipBlanks();
}

std::string_view LineReader::expression() {
    const auto begin = at_;
    term();
    while (accept('&')) term();
    const auto text = line_.substr(begin, at_ - begin);
    return text.substr(0, text.find_last_not_of(" \t\r") + 1);
}

void LineReader::fail(std::string_view reason) const {
    throw std::invalid_argument("line " + std::to_string(number_) + ": " + std::string(reason) + ": " +
                                std::string(line_));
}

} // namespace language
