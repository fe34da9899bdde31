#include "Apps/fernwick/output/token_ends.h"
#include "Basic/runtime_error.h"
#include "Basic/utf8.h"
#include "Host/files/byte_order_mark.h"
#include "Host/files/project_code_page.h"
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

const TokenEnds::Lines& TokenEnds::linesOf(const std::string& path) {
    const auto [file, isNew] = files_.try_emplace(path);
    if (!isNew) return file->second;
    host::FileContent content;
    if (basic::attempt([&] { content = host::readFile(path); }).Number != 0) return file->second;
    const auto page = host::codePageOfSource(content.bytes).page;
    for (const auto& line : host::splitLines(host::withoutByteOrderMark(content.bytes)))
        file->second.push_back(charactersOf(page.decode(line.text)));
    return file->second;
}

int TokenEnds::endColumn(const std::string& path, int line, int column) {
    const auto& lines = linesOf(path);
    if (line < 1 || std::size_t(line) > lines.size()) return 0;
    const auto& text = lines[std::size_t(line) - 1];
    if (column < 1 || std::size_t(column) > text.size()) return 0;
    auto end = std::size_t(column); // after one character
    if (isWordCharacter(text[end - 1]))
        while (end < text.size() && isWordCharacter(text[end])) ++end;
    return int(end) + 1;
}

} // namespace cli
