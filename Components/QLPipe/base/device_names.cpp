#include "Components/QLPipe/base/device_names.h"
#include "Basic/text.h"
#include "Basic/utf8.h"
#include <algorithm>

namespace qlpipe {
namespace {

constexpr std::size_t kLongestPart = 255;

bool isPlainText(std::string_view text) noexcept {
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = basic::nextCharacter(text, at);
        if (character == basic::kNoCharacter || character < ' ' || character == 0x7F) return false;
    }
    return true;
}

} // namespace

std::string withSlashes(std::string name) {
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

bool isSafePart(std::string_view part) noexcept {
    return !part.empty() && part.size() <= kLongestPart && part[0] != '.' &&
           part.find_first_of("/\\:") == std::string_view::npos && isPlainText(part);
}

bool isSafeName(std::string_view name) noexcept {
    if (name.size() > kLongestName) return false;
    for (std::size_t parts = 1; parts <= kMostParts; ++parts) {
        const auto end = name.find('/');
        if (!isSafePart(name.substr(0, end))) return false;
        if (end == std::string_view::npos) return true;
        name.remove_prefix(end + 1);
    }
    return false;
}

std::string kindOf(std::string_view name) {
    const auto point = name.find_last_of("./\\");
    return point == std::string_view::npos || name[point] != '.' ? "" : basic::UCase(name.substr(point + 1));
}

std::string folderOf(const std::string& name) {
    const auto end = name.rfind('/');
    return end == std::string::npos ? "" : name.substr(0, end);
}

std::string lastPart(const std::string& name) { return name.substr(name.rfind('/') + 1); }

} // namespace qlpipe
