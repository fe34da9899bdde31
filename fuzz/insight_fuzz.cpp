// For any text and position the queries of the editor end without an error. The first two bytes are the position.
#include "Components/QLToolkit/insight/renaming.h"
#include "tests/qltoolkit/insight_program.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2 || size > 20'000) return 0;
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);
    auto marked = text;
    std::erase(marked, '|');
    marked.insert((data[0] << 8U | data[1]) % (marked.size() + 1), "|");
    test::InsightProgram program;
    program.controls = "   Begin VB.TextBox Text1 \n      Index = 0\n   End\n";
    program.add("Module1.bas", text).add("Form1.frm", text).add("Class1.cls", text);
    (void)program.offer(marked, qltoolkit::Wanted::Special);
    (void)program.offer(marked);
    (void)program.call(marked);
    (void)program.info(marked);
    const auto input = program.input();
    const auto pos = (data[0] << 8U | data[1]) % (input.sources[0]->size() + 1);
    const auto renaming = qltoolkit::renamingAt(input, 0, static_cast<qltoolkit::Pos>(pos));
    if (renaming.refusal.empty()) (void)qltoolkit::refusalOf(input, renaming, "Other");
    return 0;
}
