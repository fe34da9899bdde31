// For any project of several modules the checks of names and types terminate, and their messages are inside the files. The
// first byte selects the options and the code page.
#include "tests/qltoolkit/checked_program.h"
#include <array>
#include <cstdlib>

namespace {

void check(test::CheckedProgram& program, unsigned options) {
    program.options.isIncomplete = options & 1;
    program.options.warnsOptionally = options & 2;
    program.options.warnsOfDevices = options & 4;
    for (const auto& result : program.results())
        for (const auto& d : result.diagnostics)
            if (d.line > result.lines + 1 || d.number < 1000 || d.number > 2998 || d.text.empty()) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0 || size > 100'000) return 0;
    static const std::array pages = {basic::CodePage::windows1252(), basic::CodePage(932)};
    test::CheckedProgram program;
    program.page = pages[data[0] >> 3 & 1];
    program.controls = "   Begin VB.TextBox Text1 \n      Index = 0\n   End\n   Begin VB.Menu mnuFile \n   End\n"
                       "   Begin VB.Frame Frame1 \n      Begin VB.ListBox List1 \n      End\n   End\n";
    program.addAll({reinterpret_cast<const char*>(data) + 1, size - 1});
    check(program, data[0]);
    check(program, ~unsigned{data[0]});
    return 0;
}
