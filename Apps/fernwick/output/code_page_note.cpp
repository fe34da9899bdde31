#include "Apps/fernwick/output/code_page_note.h"
#include "Host/files/project_code_page.h"
#include <fmt/format.h>

namespace cli {

void reportCodePage(Console& console, const std::string& file, const basic::DetectedCodePage& detected) {
    if (!detected.matters && detected.reason == basic::CodePageReason::Default) return;
    const auto line =
        fmt::format("{}: read in code page {}, {}", file, detected.page.number(), host::textOf(detected.reason));
    const bool guessed = detected.matters && (detected.reason == basic::CodePageReason::Charset ||
                                              detected.reason == basic::CodePageReason::FileNames ||
                                              detected.reason == basic::CodePageReason::Text);
    guessed ? console.note(line) : console.detail(line);
}

} // namespace cli
