#include "Host/files/system_error.h"
#include "Host/registry/reg_text.h"
#include "Host/registry/utf16.h"
#include <algorithm>
#include <fmt/format.h>
#include <iterator>

namespace host {
namespace {

constexpr std::size_t kRegLineWidth = 80;

[[noreturn]] void failNotText(const RegInstruction& of) {
    throw hostError(basic::kInvalidProcedureCall,
                    fmt::format("The text of the value \"{}\" in the key \"{}\" is not UTF-8.", of.name, of.key));
}

std::string quotedRegText(std::string_view text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '\\' || c == '"') out += '\\';
        out += c;
    }
    return out + '"';
}

/// True for text that can be written between quotation marks: no line breaks, one NUL at the end.
bool fitsInQuotes(std::string_view data) {
    if (data.empty() || data.back() != '\0') return false;
    data.remove_suffix(1);
    return std::none_of(data.begin(), data.end(), [](char c) { return c == '\0' || c == '\r' || c == '\n'; });
}

/// Bytes as "01,02,…", wrapped at the line width; `column` is the position of the first one.
std::string hexBytes(std::string_view bytes, std::size_t column) {
    std::string out;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i > 0) out += ',';
        if (i > 0 && column + 4 > kRegLineWidth) {
            out += "\\\r\n  ";
            column = 2;
        }
        fmt::format_to(std::back_inserter(out), "{:02x}", static_cast<unsigned char>(bytes[i]));
        column += 3;
    }
    return out;
}

std::string dataText(const RegInstruction& of, std::size_t column) {
    const auto& [type, data] = of.value;
    if (type == fernwick::REG_SZ && fitsInQuotes(data))
        return quotedRegText(std::string_view(data).substr(0, data.size() - 1));
    if (type == fernwick::REG_DWORD && data.size() == 4)
        return fmt::format("dword:{:02x}{:02x}{:02x}{:02x}", static_cast<unsigned char>(data[3]),
                           static_cast<unsigned char>(data[2]), static_cast<unsigned char>(data[1]),
                           static_cast<unsigned char>(data[0]));
    const auto prefix = type == fernwick::REG_BINARY ? std::string("hex:") : fmt::format("hex({:x}):", type);
    if (!isRegText(type)) return prefix + hexBytes(data, column + prefix.size());
    const auto bytes = utf16BytesFromUtf8(data);
    if (!bytes) failNotText(of);
    return prefix + hexBytes(*bytes, column + prefix.size());
}

std::string instructionText(const RegInstruction& one) {
    switch (one.kind) {
    case RegInstruction::Kind::MakeKey: return fmt::format("\r\n[{}]\r\n", one.key);
    case RegInstruction::Kind::DeleteKey: return fmt::format("\r\n[-{}]\r\n", one.key);
    default: break;
    }
    const auto start = (one.name.empty() ? "@" : quotedRegText(one.name)) + '=';
    const bool deleted = one.kind == RegInstruction::Kind::DeleteValue;
    return start + (deleted ? "-" : dataText(one, start.size())) + "\r\n";
}

} // namespace

std::string writeRegText(const std::vector<RegInstruction>& instructions, RegTextEncoding encoding) {
    auto text = fmt::format("{}\r\n", kRegHeader);
    for (const auto& one : instructions) {
        const auto piece = instructionText(one);
        if (validUtf8Length(piece) != piece.size()) failNotText(one);
        text += piece;
    }
    text += "\r\n";
    if (encoding == RegTextEncoding::Utf8) return text;
    return "\xFF\xFE" + utf16BytesFromUtf8(text).value();
}

} // namespace host
