#include "Apps/workbench/assist/editor_assist.h"
#include "Apps/workbench/assist/code_assist.h"
#include "Apps/workbench/assist/line_check.h"
#include "Apps/workbench/assist/typed_place.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/editing/code_input.h"
#include "Apps/workbench/options/declared_options.h"
#include "Components/QLToolkit/insight/library_names.h"

namespace workbench {

namespace {

/// Nothing until a snapshot was made.
Spellings libraryNames(CodeEditor& editor, ProjectInsight& insight, int line) {
    const auto known = kLibraryNames.stored() ? insight.present(editor.component()) : ProjectInsight::Known();
    if (!known) return {};
    auto& text = editor.panes().main();
    const auto begin = text.positionFromLineIndex(line, 0);
    const auto end = text.positionFromLineIndex(line, int(editor.lineText(line).size()));
    const TypedPlace place(text, begin);
    Spellings names;
    for (const auto& name : qltoolkit::libraryNamesIn(*known.snapshot, known.module, place.procedure(), place.cursor(),
                                                      place.cursor() + std::size_t(end - begin)))
        names.insert(qt(name).toLower(), qt(name));
    return names;
}

void assist(CodeEditor& editor, ProjectInsight& insight, const std::function<void(const QString&)>& status) {
    insight.prepare(editor.component());
    editor.panes().each([&](CodeInput& pane) { new CodeAssist(pane, editor.component(), insight); });
    editor.libraryNames = [&editor, &insight](int line) { return libraryNames(editor, insight, line); };
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
