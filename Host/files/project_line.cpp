#include "Host/files/project_line.h"
#include "Host/files/byte_order_mark.h"
#include "Host/files/system_error.h"
#include "Host/files/text_parts.h"
#include <fmt/format.h>

namespace host {

std::optional<std::string_view> sectionHead(std::string_view line) noexcept {
    line = trimBlanks(line);
    if (line.size() < 3 || line.front() != '[' || line.back() != ']') return {};
    return trimBlanks(line.substr(1, line.size() - 2));
}

std::optional<KeyAndValue> splitKeyLine(std::string_view line) noexcept {
    line = withoutByteOrderMark(line);
    const auto at = line.find('=');
    if (at == std::string_view::npos) return {};
    return KeyAndValue{trimBlanks(line.substr(0, at)), line.substr(at + 1)};
}

std::string_view valueOf(const TextLine& line) noexcept {
    const auto parts = splitKeyLine(line.text);
    return parts ? parts->value : std::string_view{};
}

char delimiterAround(std::string_view value) noexcept {
    if (value.size() < 2 || value.front() != value.back()) return 0;
    return value.front() == '"' || value.front() == '!' ? value.front() : char(0);
}

std::string delimited(std::string_view value, char delimiter) {
    std::string text(value);
    if (delimiter) text.insert(0, 1, delimiter).push_back(delimiter);
    return text;
}

std::string memberLineValue(MemberKind kind, std::string_view name, std::string_view value) {
    return lineHoldsName(kind) && !name.empty() ? fmt::format("{}; {}", name, value) : std::string(value);
}

void refuseLineBreak(std::string_view text) {
    if (text.find_first_of("\r\n") != std::string_view::npos)
        throw hostError(basic::kInvalidProcedureCall, "A value of a project file cannot hold a line break");
}

} // namespace host
