#include "Apps/fernwick/output/token_ends.h"
#include "Basic/detection/code_page_detection.h"
#include "Basic/utf8.h"
#include "Host/files/byte_order_mark.h"
#include "Host/files/text_file.h"

namespace cli {

namespace {

bool isWordCharacter(char32_t c) {
    return c == '_' || c > 127 || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::u32string charactersOf(std::string_view text) {
    std::u32string characters;
    for (std::size_t at = 0; at < text.size();) characters += basic::nextCharacter(text, at);
    return characters;
}

} // namespace

TokenEnds::TokenEnds(std::string_view bytes, const basic::CodePage& page) {
    const auto own = basic::codePageOfFile(bytes, page);
    for (const auto& line : host::splitLines(host::withoutByteOrderMark(bytes)))
        lines_.push_back(charactersOf(own.decode(line.text)));
}

int TokenEnds::endColumn(int line, int column) const {
    if (line < 1 || std::size_t(line) > lines_.size()) return 0;
    const auto& text = lines_[std::size_t(line) - 1];
    if (column < 1 || std::size_t(column) > text.size()) return 0;
    auto end = std::size_t(column); // after one character
    if (isWordCharacter(text[end - 1]))
        while (end < text.size() && isWordCharacter(text[end])) ++end;
    return int(end) + 1;
}

} // namespace cli
