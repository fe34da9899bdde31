#include "Components/QLToolkit/parser/form_header.h"
#include <charconv>

namespace qltoolkit {

std::string_view trimmedHeaderText(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

namespace {

char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; }

/// Removes `word` (lower case) and the blanks after it from the front. Returns false if the line begins differently.
bool takeHeaderWord(std::string_view& line, std::string_view word) {
    if (line.size() < word.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if (lowerAscii(line[i]) != word[i]) return false;
    if (line.size() > word.size() && line[word.size()] != ' ' && line[word.size()] != '\t') return false;
    line = trimmedHeaderText(line.substr(word.size()));
    return true;
}

/// Returns the value without the comment that the IDE appends. A ' in quotes does not begin a comment.
std::string_view literalOf(std::string_view value) {
    bool quoted = false;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '"') quoted = !quoted;
        if (value[i] == '\'' && !quoted) return trimmedHeaderText(value.substr(0, i));
    }
    return value;
}

std::int32_t indexOf(const image::Control& control) {
    for (const auto& property : control.properties) {
        if (property.name != "Index") continue;
        std::int32_t index = image::Control::kNoIndex;
        const auto& text = property.value.str();
        std::from_chars(text.data(), text.data() + text.size(), index);
        return index;
    }
    return image::Control::kNoIndex;
}

class FormHeaderReader {
public:
    explicit FormHeaderReader(const SourceText& source) : source_(source), line_(source.headerBlock()) {}

    std::optional<image::Control> read() {
        while (line_ > 0 && line_ <= source_.lineCount()) {
            readLine(trimmedHeaderText(source_.line(line_++)));
            if (done_) return std::move(root_);
        }
        return std::nullopt;
    }

private:
    void readLine(std::string_view line) {
        if (std::string_view rest = line; takeHeaderWord(rest, "beginproperty")) {
            prefix_.push_back(prefix() + source_.decode(rest.substr(0, rest.find(' '))) + ".");
        } else if (takeHeaderWord(rest = line, "endproperty")) {
            if (!prefix_.empty()) prefix_.pop_back();
        } else if (takeHeaderWord(rest = line, "begin")) {
            beginControl(rest);
        } else if (takeHeaderWord(rest = line, "end")) {
            endControl();
        } else {
            readProperty(line);
        }
    }

    void beginControl(std::string_view rest) {
        const auto blank = rest.find(' ');
        image::Control control;
        control.className = source_.decode(rest.substr(0, blank));
        if (blank != rest.npos) control.name = source_.decode(trimmedHeaderText(rest.substr(blank)));
        open_.push_back(std::move(control));
    }

    void endControl() {
        if (open_.empty()) return;
        image::Control control = std::move(open_.back());
        open_.pop_back();
        control.index = indexOf(control);
        if (open_.empty()) {
            root_ = std::move(control);
            done_ = true;
        } else {
            open_.back().children.push_back(std::move(control));
        }
    }

    void readProperty(std::string_view line) {
        const auto equals = line.find('=');
        if (equals == line.npos || open_.empty()) return;
        open_.back().properties.push_back({prefix() + source_.decode(trimmedHeaderText(line.substr(0, equals))),
                                           source_.decode(literalOf(trimmedHeaderText(line.substr(equals + 1))))});
    }

    std::string prefix() const { return prefix_.empty() ? std::string() : prefix_.back(); }

    const SourceText& source_;
    std::uint32_t line_;
    std::vector<image::Control> open_;
    std::vector<std::string> prefix_;
    image::Control root_;
    bool done_ = false;
};

} // namespace

std::optional<image::Control> readFormHeader(const SourceText& source) {
    if (source.kind() == FileKind::Class) return std::nullopt; // its block has no controls
    if (source.header() != HeaderState::Complete || source.headerBlock() == 0) return std::nullopt;
    return FormHeaderReader{source}.read();
}

} // namespace qltoolkit
