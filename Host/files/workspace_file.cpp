#include "Host/files/workspace_file.h"
#include "Host/files/text_parts.h"
#include <charconv>

namespace host {
namespace {

std::vector<std::string_view> commaFields(std::string_view text) {
    std::vector<std::string_view> fields;
    for (;;) {
        const auto comma = text.find(',');
        fields.push_back(trimBlanks(text.substr(0, comma)));
        if (comma == std::string_view::npos) return fields;
        text.remove_prefix(comma + 1);
    }
}

bool readCoordinate(std::string_view text, int& number) noexcept {
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc{} && result.ptr == text.data() + text.size();
}

/// Reads five fields from `first` on; nothing if they are not a window's place.
std::optional<WindowPlace> readPlace(const std::vector<std::string_view>& fields, std::size_t first) {
    constexpr std::size_t kFields = 5;
    if (fields.size() < first + kFields) return {};
    WindowPlace place;
    const bool read = readCoordinate(fields[first], place.left) && readCoordinate(fields[first + 1], place.top) &&
                      readCoordinate(fields[first + 2], place.right) && readCoordinate(fields[first + 3], place.bottom);
    if (!read) return {};
    place.state = fields[first + 4];
    return place;
}

} // namespace

WorkspaceFile::WorkspaceFile(std::string_view bytes, const basic::CodePage& codePage) : lines_(splitLines(bytes)) {
    for (const auto& line : lines_) {
        const std::string_view text = line.text;
        const auto equals = text.find('=');
        if (equals == std::string_view::npos) continue;
        const auto fields = commaFields(text.substr(equals + 1));
        if (const auto code = readPlace(fields, 0))
            entries_.push_back({codePage.decode(trimBlanks(text.substr(0, equals))), *code, readPlace(fields, 5)});
    }
}

} // namespace host
