#include "Host/files/group_file.h"
#include "Basic/case_folding.h"
#include "Host/files/byte_order_mark.h"
#include "Host/files/text_parts.h"

namespace host {

GroupFile::GroupFile(std::string_view bytes, const basic::CodePage& codePage) : lines_(splitLines(bytes)) {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const std::string_view line = lines_[i].text;
        const auto equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        const auto key = trimBlanks(line.substr(0, equals));
        const bool startUp = basic::equalNoCase(key, "StartupProject");
        if (!startUp && !basic::equalNoCase(key, "Project")) continue;
        entries_.push_back({codePage.decode(trimBlanks(line.substr(equals + 1))), startUp, i + 1});
    }
}

bool GroupFile::looksLikeGroup(std::string_view bytes) noexcept {
    constexpr std::string_view kHead = "VBGROUP";
    bytes = withoutByteOrderMark(bytes);
    return basic::equalNoCase(trimBlanks(bytes.substr(0, kHead.size())), kHead);
}

} // namespace host
