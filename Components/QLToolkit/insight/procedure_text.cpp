#include "Components/QLToolkit/insight/procedure_text.h"
#include "Basic/case_folding.h"
#include <algorithm>

namespace qltoolkit {

namespace {

std::string_view takeWord(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    const auto word = line.substr(0, line.find_first_of(" \t\r\n(:'"));
    line.remove_prefix(word.size());
    return word;
}

bool isOneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(), [&](auto each) { return basic::equalNoCase(each, word); });
}

bool beginsProcedure(std::string_view line) {
    auto word = takeWord(line);
    while (isOneOf(word, {"Public", "Private", "Friend", "Static"})) word = takeWord(line);
    return isOneOf(word, {"Sub", "Function", "Property"});
}

bool endsProcedure(std::string_view line) {
    return isOneOf(takeWord(line), {"End"}) && isOneOf(takeWord(line), {"Sub", "Function", "Property"});
}

class Lines {
public:
    explicit Lines(std::string_view text) : text_(text) {}
    [[nodiscard]] std::size_t beginOf(std::size_t pos) const {
        const auto found = pos == 0 ? text_.npos : text_.rfind('\n', pos - 1);
        return found == text_.npos ? 0 : found + 1;
    }
    [[nodiscard]] std::size_t after(std::size_t pos) const {
        const auto found = text_.find('\n', pos);
        return found == text_.npos ? text_.size() : found + 1;
    }
    [[nodiscard]] std::string_view at(std::size_t begin) const { return text_.substr(begin, after(begin) - begin); }
    [[nodiscard]] bool isContinued(std::size_t begin) const {
        auto line = at(begin);
        line = line.substr(0, line.find_last_not_of(" \t\r\n") + 1);
        return line.ends_with(" _") || line.ends_with("\t_");
    }

private:
    std::string_view text_;
};

ProcedureText statementAround(const Lines& lines, std::size_t size, std::size_t pos) {
    ProcedureText found{lines.beginOf(pos), lines.after(pos)};
    while (found.begin > 0 && lines.isContinued(lines.beginOf(found.begin - 1)))
        found.begin = lines.beginOf(found.begin - 1);
    while (found.end < size && lines.isContinued(lines.beginOf(found.end - 1))) found.end = lines.after(found.end);
    return found;
}

} // namespace

ProcedureText procedureAround(std::string_view text, std::size_t pos) {
    const Lines lines{text};
    pos = std::min(pos, text.size());
    auto begin = lines.beginOf(pos);
    while (!beginsProcedure(lines.at(begin))) {
        if (begin == 0) return statementAround(lines, text.size(), pos);
        const auto previous = lines.beginOf(begin - 1);
        if (endsProcedure(lines.at(previous))) return statementAround(lines, text.size(), pos);
        begin = previous;
    }
    auto end = lines.after(lines.beginOf(pos));
    auto line = lines.beginOf(pos);
    while (!endsProcedure(lines.at(line)) && end < text.size() && !beginsProcedure(lines.at(end))) {
        line = end;
        end = lines.after(line);
    }
    return {begin, end};
}

} // namespace qltoolkit
