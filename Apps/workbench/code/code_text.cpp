#include "Apps/workbench/code/code_text.h"
#include "Apps/workbench/base/text.h"

namespace workbench {

QString codeOf(vbide::CodeModule& module) {
    const int count = module.CountOfLines();
    return count == 0 ? QString() : qt(module.Lines(1, count)).remove('\r');
}

void passOn(vbide::CodeModule& module, const LineEdit& edit, const std::function<std::string(int)>& line) {
    const auto lines = [&line](int from, int count) {
        std::string joined;
        for (int i = from; i < from + count; ++i) joined += line(i) + "\r\n";
        return joined;
    };
    // an editor has at least one line, a module may have none
    if (module.CountOfLines() == 0) return module.InsertLines(1, lines(0, edit.added + 1));

    const int changed = edit.first + 1, next = edit.atStart ? changed : changed + 1;
    if (edit.added > 0) module.InsertLines(next, lines(next - 1, edit.added));
    if (edit.added < 0) module.DeleteLines(next, -edit.added);
    const int kept = edit.atStart && edit.added > 0 ? changed + edit.added : changed;
    const auto now = line(kept - 1);
    if (module.Lines(kept, 1) != now) module.ReplaceLine(kept, now);
}

} // namespace workbench
