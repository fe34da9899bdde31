#include "Basic/code_page.h"
#include "Host/files/text_parts.h"
#include "Host/registry/reg_text.h"
#include "Host/registry/reg_text_decoding.h"
#include "Host/registry/utf16.h"
#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <optional>
#include <utility>

namespace host {
namespace {

bool isEndOrComment(std::string_view s) {
    s = trimLeft(s);
    return s.empty() || s.front() == ';';
}

bool takeRegPrefix(std::string_view& s, std::string_view prefix) {
    if (!s.starts_with(prefix)) return false;
    s.remove_prefix(prefix.size());
    return true;
}

/// Removes a hexadecimal number of at most `most` digits from the front of `s`.
std::optional<std::uint32_t> takeHex(std::string_view& s, std::size_t most) {
    std::uint32_t number = 0;
    const auto* end = s.data() + std::min(most, s.size());
    const auto [stop, error] = std::from_chars(s.data(), end, number, 16);
    if (error != std::errc{}) return std::nullopt;
    s.remove_prefix(static_cast<std::size_t>(stop - s.data()));
    return number;
}

class RegTextReader {
public:
    RegTextReader(std::string text, std::string_view file) : text_(std::move(text)), file_(file) {}

    std::vector<RegInstruction> read() {
        if (!nextLine() || (!isHeader(kRegHeader) && !isHeader(kOldRegHeader)))
            fail(fmt::format("the first line is not \"{}\"", kRegHeader));
        isOld_ = isHeader(kOldRegHeader);
        while (nextLine()) {
            line_ = trimLeft(line_);
            if (isEndOrComment(line_)) continue;
            if (line_.front() == '[')
                readKey();
            else
                readValue();
        }
        return std::move(instructions_);
    }

private:
    [[noreturn]] void fail(std::string_view reason) const {
        regTextError(file_, std::max<std::size_t>(number_, 1), reason);
    }

    bool isHeader(std::string_view header) const {
        return line_.starts_with(header) && isEndOrComment(line_.substr(header.size()));
    }

    bool nextLine() {
        if (at_ >= text_.size()) return false;
        const auto end = std::min(text_.find_first_of("\r\n", at_), text_.size());
        line_ = std::string_view(text_).substr(at_, end - at_);
        at_ = end + (text_.compare(end, 2, "\r\n") == 0 ? 2 : 1);
        ++number_;
        return true;
    }

    RegInstruction& add(RegInstruction::Kind kind) {
        auto& made = instructions_.emplace_back();
        made.kind = kind;
        made.key = key_;
        made.line = number_;
        return made;
    }

    void readKey() {
        const auto close = line_.rfind(']'); // a key's name may contain brackets
        if (close == line_.npos || !isEndOrComment(line_.substr(close + 1))) fail("\"]\" is missing after the key");
        auto key = line_.substr(1, close - 1);
        const bool deleted = takeRegPrefix(key, "-");
        if (key.empty()) fail("the key has no name");
        key_ = key;
        add(deleted ? RegInstruction::Kind::DeleteKey : RegInstruction::Kind::MakeKey);
        if (deleted) key_.clear(); // values cannot follow
    }

    void readValue() {
        if (line_.front() != '@' && line_.front() != '"')
            fail("a line must begin with \"[\", a value's name in quotation marks, \"@\" or \";\"");
        if (key_.empty()) fail("a value is outside a key");
        auto& made = add(RegInstruction::Kind::SetValue);
        if (!takeRegPrefix(line_, "@")) made.name = readQuoted();
        line_ = trimLeft(line_);
        if (!takeRegPrefix(line_, "=")) fail("\"=\" is missing after the value's name");
        line_ = trimLeft(line_);
        if (takeRegPrefix(line_, "-"))
            made.kind = RegInstruction::Kind::DeleteValue;
        else
            made.value = readData();
        if (!isEndOrComment(line_)) fail(fmt::format("\"{}\" follows the data", line_.substr(0, 40)));
    }

    RegValue readData() {
        if (line_.starts_with('"')) return {fernwick::REG_SZ, readQuoted() + '\0'};
        if (takeRegPrefix(line_, "dword:")) return {fernwick::REG_DWORD, readDword()};
        if (takeRegPrefix(line_, "hex:")) return {fernwick::REG_BINARY, readHexBytes()};
        if (!takeRegPrefix(line_, "hex(")) fail("the data must be \"text\", dword:, hex:, hex(type): or -");
        const auto type = takeHex(line_, 8);
        if (!type || !takeRegPrefix(line_, "):")) fail("the type in hex(type): is not a hexadecimal number");
        auto bytes = readHexBytes();
        if (!isRegText(*type)) return {*type, std::move(bytes)};
        if (isOld_) return {*type, basic::CodePage::windows1252().decode(bytes)};
        auto text = utf8FromUtf16Bytes(bytes);
        if (!text) fail("the bytes are not UTF-16 text");
        return {*type, std::move(*text)};
    }

    std::string readQuoted() {
        std::string text;
        for (std::size_t i = 1; i < line_.size(); ++i) {
            if (line_[i] == '"') {
                line_.remove_prefix(i + 1);
                return text;
            }
            if (line_[i] == '\\' && (++i == line_.size() || (line_[i] != '\\' && line_[i] != '"')))
                fail("\"\\\" in a text must be followed by another \"\\\" or a quotation mark");
            text += line_[i];
        }
        fail("the closing quotation mark is missing");
    }

    std::string readDword() {
        const auto number = takeHex(line_, 8);
        if (!number) fail("dword: must be followed by up to eight hexadecimal digits");
        std::string bytes;
        for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(*number >> shift & 0xFF);
        return bytes;
    }

    std::string readHexBytes() {
        std::string bytes;
        for (;;) {
            skipContinuation();
            if (isEndOrComment(line_)) return bytes;
            const auto byte = takeHex(line_, 2);
            if (!byte) fail("hex data must be bytes of two hexadecimal digits, separated by commas");
            bytes += static_cast<char>(*byte);
            line_ = trimLeft(line_);
            if (!takeRegPrefix(line_, ",")) return bytes;
        }
    }

    void skipContinuation() {
        line_ = trimLeft(line_);
        while (line_.starts_with('\\') && isEndOrComment(line_.substr(1))) {
            if (!nextLine()) fail("the file ends after a \"\\\"");
            line_ = trimLeft(line_);
        }
    }

    std::string text_;
    std::string_view file_;
    std::size_t at_ = 0;
    std::string_view line_; ///< the rest of the current line
    std::size_t number_ = 0;
    std::string key_;
    bool isOld_ = false;
    std::vector<RegInstruction> instructions_;
};

} // namespace

std::vector<RegInstruction> readRegText(std::string_view bytes, std::string_view fileName) {
    return RegTextReader(decodeRegFile(bytes, fileName), fileName).read();
}

} // namespace host
