// For any module the parser terminates, its diagnostics are inside the file, and its tree can be walked. The first byte
// selects the kind of file and the code page.
#include "Components/QLToolkit/check.h"
#include "tests/qltoolkit/ast_dump.h"
#include <array>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0 || size > 100'000) return 0;
    static constexpr const char* kNames[] = {"Fuzz.bas", "Fuzz.cls", "Fuzz.frm", "Fuzz.bas"};
    // Building the table of a double-byte page takes longer than most runs.
    static const std::array pages = {basic::CodePage::windows1252(), basic::CodePage(932)};
    const qltoolkit::dump::Parsed parsed{std::string(reinterpret_cast<const char*>(data) + 1, size - 1),
                                         kNames[data[0] & 3],
                                         {},
                                         pages[data[0] >> 2 & 1]};
    for (const auto& d : parsed.result.diagnostics)
        if (d.line > parsed.source.lineCount() + 1 || d.number < 1000 || d.number > 2998 || d.text.empty())
            std::abort();
    if (parsed.result.module && parsed.module().size() > size * 200 + 1000) std::abort();
    return 0;
}
