#include "Apps/workbench/assist/editor_assist.h"
#include "Apps/workbench/assist/code_assist.h"
#include "Apps/workbench/assist/line_check.h"
#include "Apps/workbench/editing/code_input.h"

namespace workbench {

namespace {

void assist(CodeEditor& editor, ProjectInsight& insight, const std::function<void(const QString&)>& status) {
    insight.prepare(editor.component());
    editor.panes().each([&](CodeInput& pane) { new CodeAssist(pane, editor.component(), insight); });
    auto* const check = new LineCheck(editor.panes().main());
    check->found = status;
    editor.lineLeft = [check](int line) { check->check(line); };
    editor.noteOf = [check](int line) { return check->textAt(line); };
}

} // namespace

void assistEditors(CodeWindows& windows, ProjectInsight& insight, std::function<void(const QString&)> status) {
    windows.made = [before = std::move(windows.made), &insight, status = std::move(status)](CodeEditor& editor) {
        before(editor);
        assist(editor, insight, status);
    };
}

} // namespace workbench
