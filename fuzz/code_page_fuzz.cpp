// Every byte string is preserved by every code page, also by the detected one, and encoding fails only with error 5.
#include "Basic/detection/code_page_detection.h"
#include "Basic/runtime_error.h"
#include <array>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::array pages = {basic::CodePage::windows1252(), basic::CodePage(65001), basic::CodePage(874),
                                     basic::CodePage(932),           basic::CodePage(936),   basic::CodePage(949),
                                     basic::CodePage(950),           basic::CodePage(1250),  basic::CodePage(1255)};
    if (size == 0) return 0;
    const basic::CodePage& page = pages[data[0] % pages.size()];
    const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::string text = page.decode(bytes);
    if (page.encode(text) != bytes) std::abort();
    if (!basic::CodePage(65001).tryEncode(text)) std::abort(); // well-formed UTF-8
    (void)page.tryEncode(bytes);
    basic::CodePageEvidence evidence;
    evidence.addFile(bytes);
    if (!basic::CodePage::isKnown(evidence.detect().page.number())) std::abort();
    return 0;
}
