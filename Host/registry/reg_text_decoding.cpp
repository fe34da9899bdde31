#include "Host/registry/reg_text_decoding.h"
#include "Basic/code_page.h"
#include "Host/files/byte_order_mark.h"
#include "Host/files/system_error.h"
#include "Host/registry/reg_text.h"
#include "Host/registry/utf16.h"
#include <algorithm>
#include <fmt/format.h>

namespace host {
namespace {

constexpr int kInvalidRegFile = 321;

std::string checkedUtf8(std::string_view bytes, std::string_view file) {
    const auto valid = validUtf8Length(bytes);
    if (valid == bytes.size()) return std::string(bytes);
    const auto line = 1 + std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(valid), '\n');
    regTextError(file, static_cast<std::size_t>(line), "the text is neither UTF-16 nor UTF-8");
}

} // namespace

void regTextError(std::string_view file, std::size_t line, std::string_view reason) {
    throw hostError(kInvalidRegFile, fmt::format("{}:{}: {}", file, line, reason));
}

std::string decodeRegFile(std::string_view bytes, std::string_view file) {
    const bool marked = bytes.starts_with("\xFF\xFE");
    if (marked || bytes.starts_with(std::string_view("W\0", 2))) {
        auto text = utf8FromUtf16Bytes(bytes.substr(marked ? 2 : 0));
        if (!text) regTextError(file, 1, "the file is truncated or is not UTF-16 text");
        return std::move(*text);
    }
    if (bytes.starts_with("\xFE\xFF")) regTextError(file, 1, "UTF-16 in big-endian byte order is not a registry file");
    if (bytes.starts_with(kOldRegHeader)) return basic::CodePage::windows1252().decode(bytes);
    return checkedUtf8(withoutByteOrderMark(bytes), file);
}

} // namespace host
