#include "Basic/runtime_error.h"
#include "Host/registry/reg_text.h"
#include "Host/registry/utf16.h"
#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <optional>
#include <utility>

namespace host {
namespace {

constexpr int kInvalidRegFile = 321;
constexpr std::string_view kRegHeader = "Windows Registry Editor Version 5.00";

[[noreturn]] void regTextError(std::string_view file, std::size_t line, std::string_view reason) {
    throw basic::RuntimeError(kInvalidRegFile, fmt::format("{}:{}: {}", file, line, reason), "VBIDE");
}

std::string decodeUtf8(std::string_view bytes, std::string_view file) {
    const auto valid = validUtf8Length(bytes);
    if (valid == bytes.size()) return std::string(bytes);
    const auto line = 1 + std::count(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(valid), '\n');
    regTextError(file, static_cast<std::size_t>(line), "the text is neither UTF-16 nor UTF-8");
}

std::string decodeRegFile(std::string_view bytes, std::string_view file) {
    const bool marked = bytes.starts_with("\xFF\xFE");
    if (marked || bytes.starts_with(std::string_view("W\0", 2))) {
        auto text = utf8FromUtf16Bytes(bytes.substr(marked ? 2 : 0));
        if (!text) regTextError(file, 1, "the file is cut short or is not UTF-16 text");
        return std::move(*text);
    }
    if (bytes.starts_with("\xFE\xFF")) regTextError(file, 1, "UTF-16 in big-endian byte order is not a registry file");
    return decodeUtf8(bytes.substr(bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0), file);
}

std::string_view skipBlanks(std::string_view s) {
    const auto first = s.find_first_not_of(" \t");
    return first == s.npos ? std::string_view{} : s.substr(first);
}

bool isEndOrComment(std::string_view s) {
    s = skipBlanks(s);
    return s.empty() || s.front() == ';';
}

bool takeRegPrefix(std::string_view& s, std::string_view prefix) {
    if (!s.starts_with(prefix)) return false;
    s.remove_prefix(prefix.size());
    return true;
}

/// A number in hexadecimal digits from the front of `s`, of at most `most` digits.
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
        if (!nextLine() || !line_.starts_with(kRegHeader) || !isEndOrComment(line_.substr(kRegHeader.size())))
            fail(fmt::format("the first line is not \"{}\"", kRegHeader));
        while (nextLine()) {
            line_ = skipBlanks(line_);
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
        const auto close = line_.rfind(']'); // a key's name may hold brackets
        if (close == line_.npos || !isEndOrComment(line_.substr(close + 1))) fail("\"]\" is missing behind the key");
        auto key = line_.substr(1, close - 1);
        const bool deleted = takeRegPrefix(key, "-");
        if (key.empty()) fail("the key has no name");
        key_ = key;
        add(deleted ? RegInstruction::Kind::DeleteKey : RegInstruction::Kind::MakeKey);
        if (deleted) key_.clear(); // values that follow would stand under nothing
    }

    void readValue() {
        if (line_.front() != '@' && line_.front() != '"')
            fail("a line begins with \"[\", a value's name in quotation marks, \"@\" or \";\"");
        if (key_.empty()) fail("a value stands outside a key");
        auto& made = add(RegInstruction::Kind::SetValue);
        if (!takeRegPrefix(line_, "@")) made.name = readQuoted();
        line_ = skipBlanks(line_);
        if (!takeRegPrefix(line_, "=")) fail("\"=\" is missing behind the value's name");
        line_ = skipBlanks(line_);
        if (takeRegPrefix(line_, "-"))
            made.kind = RegInstruction::Kind::DeleteValue;
        else
            made.value = readData();
        if (!isEndOrComment(line_)) fail(fmt::format("\"{}\" stands behind the data", line_.substr(0, 40)));
    }

    RegValue readData() {
        if (line_.starts_with('"')) return {fernwick::REG_SZ, readQuoted() + '\0'};
        if (takeRegPrefix(line_, "dword:")) return {fernwick::REG_DWORD, readDword()};
        if (takeRegPrefix(line_, "hex:")) return {fernwick::REG_BINARY, readHexBytes()};
        if (!takeRegPrefix(line_, "hex(")) fail("the data are none of \"text\", dword:, hex:, hex(type): and -");
        const auto type = takeHex(line_, 8);
        if (!type || !takeRegPrefix(line_, "):")) fail("the type in hex(type): is not a hexadecimal number");
        auto bytes = readHexBytes();
        if (!isRegText(*type)) return {*type, std::move(bytes)};
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
                fail("\"\\\" in a text stands before another \"\\\" or a quotation mark only");
            text += line_[i];
        }
        fail("the closing quotation mark is missing");
    }

    std::string readDword() {
        const auto number = takeHex(line_, 8);
        if (!number) fail("dword: has up to eight hexadecimal digits");
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
            if (!byte) fail("hex data are bytes of two hexadecimal digits with commas between them");
            bytes += static_cast<char>(*byte);
            line_ = skipBlanks(line_);
            if (!takeRegPrefix(line_, ",")) return bytes;
        }
    }

    void skipContinuation() {
        line_ = skipBlanks(line_);
        while (line_.starts_with('\\') && isEndOrComment(line_.substr(1))) {
            if (!nextLine()) fail("the file ends behind a \"\\\"");
            line_ = skipBlanks(line_);
        }
    }

    std::string text_;
    std::string_view file_;
    std::size_t at_ = 0;
    std::string_view line_; ///< what is left of the current line
    std::size_t number_ = 0;
    std::string key_;
    std::vector<RegInstruction> instructions_;
};

} // namespace

std::vector<RegInstruction> readRegText(std::string_view bytes, std::string_view fileName) {
    return RegTextReader(decodeRegFile(bytes, fileName), fileName).read();
}

} // namespace host
