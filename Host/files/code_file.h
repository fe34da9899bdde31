#pragma once
// The text of a source file (.bas, .cls, .frm and its kin): a header that the code window does not show, and the code,
// whose "Attribute" lines it does not show and does not count either.
#include "Basic/code_page.h"
#include "Host/files/text_file.h"
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A source file cut behind its header: VERSION line, Object lines, one balanced Begin block, then the run of lines that
/// start with "Attribute ". A file without these has an empty header. The parts are views of the bytes.
struct SourceParts {
    std::string_view designer;   ///< VERSION, Object lines and the Begin block
    std::string_view attributes; ///< the run of Attribute lines
    std::string_view code;       ///< from line 1 of the code window on
    bool balanced = true;        ///< false: the file ends inside the Begin block
};
SourceParts splitSource(std::string_view bytes);

/// The value of an attribute in a run of Attribute lines, without its quotes; nothing when it is not there.
std::optional<std::string_view> attributeValue(std::string_view attributes, std::string_view name);

/// The lines of a module's code. Numbers of lines count from 1 and are those of the code window.
class CodeText {
public:
    /// `ownEnd` is what new lines end with.
    CodeText(std::string_view code, basic::CodePage codePage, LineEnd ownEnd);

    std::size_t count() const { return shown().size(); }

    /// One line without its end. `line` is in 1..count().
    std::string line(std::size_t line) const;

    /// The line of this text (from 1, hidden lines counted) that shows as `line`; what is beyond the last line counts on.
    std::size_t physicalLine(std::size_t line) const;
    /// The code window's line of a line of this text; a hidden line has that of the line above it.
    std::size_t windowLine(std::size_t physical) const;

    /// Inserts the lines of `text` before `line` (1..count()+1). Error 5, and nothing changed: a character that the code
    /// page lacks.
    void insert(std::size_t line, std::string_view text);
    /// Removes lines and the hidden attributes that follow them.
    void remove(std::size_t line, std::size_t count);
    /// Puts the lines of `text` in the place of one line. Error as for insert.
    void replace(std::size_t line, std::string_view text);

    std::string bytes() const { return joinLines(lines_); }

private:
    const std::vector<std::uint32_t>& shown() const;
    std::vector<TextLine> encoded(std::string_view text) const;

    basic::CodePage codePage_;
    LineEnd ownEnd_;
    std::vector<TextLine> lines_;
    mutable std::vector<std::uint32_t> shown_;
    mutable bool counted_ = false;
};

} // namespace host
