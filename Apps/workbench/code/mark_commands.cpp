#include "Apps/workbench/code/mark_commands.h"
#include "Apps/workbench/base/component_project.h"
#include "Apps/workbench/code/code_text.h"
#include "Apps/workbench/code/code_texts.h"
#include <algorithm>

namespace workbench {

MarkCommands::MarkCommands(CodeWindows& windows, NoticeBar& notice, Run run)
    : windows_(windows), notice_(notice), run_(std::move(run)) {
    windows_.marginClicked = [this](CodeEditor& editor, int line) { toggleBreakpoint(editor, line); };
}

void MarkCommands::toggleBookmark() {
    if (auto* const editor = windows_.current()) editor->ownMarks().bookmarks().toggle(editor->place().line);
}

/// In the order of the project.
std::vector<MarkCommands::Bookmark> MarkCommands::bookmarks(const Components& components) {
    std::vector<Bookmark> all;
    for (std::size_t i = 0; i < components.size(); ++i) {
        const auto marks = windows_.ownMarksOf(components[i]).bookmarks;
        if (marks.empty()) continue;
        for (const int line : linesOf(marks, codeOf(*components[i]->CodeModule()).split('\n')))
            all.push_back({i, line});
    }
    return all;
}

void MarkCommands::goToBookmark(bool backwards) {
    auto* const editor = windows_.current();
    if (!editor) return;
    const auto components = editor->component()->Collection()->items();
    const auto all = bookmarks(components);
    if (all.empty()) return;
    const auto own = std::find(components.begin(), components.end(), editor->component()) - components.begin();
    const Bookmark here{std::size_t(own), editor->place().line};
    const auto after = std::upper_bound(all.begin(), all.end(), here);
    const auto before = std::lower_bound(all.begin(), all.end(), here);
    const auto& next =
        backwards ? (before == all.begin() ? all.back() : *(before - 1)) : (after == all.end() ? all.front() : *after);
    windows_.showPlace({components[next.first], next.second, 0, 0});
}

void MarkCommands::clearBookmarks() {
    if (const auto* const editor = windows_.current())
        windows_.clearMarks(projectOf(editor->component()), &ComponentMarks::bookmarks);
}

void MarkCommands::toggleBreakpoint() {
    if (auto* const editor = windows_.current()) toggleBreakpoint(*editor, editor->place().line);
}

void MarkCommands::toggleBreakpoint(CodeEditor& editor, int line) {
    if (!editor.ownMarks().toggleBreakpoint(line)) return notice_.showText(code_texts::kNoBreakpoint);
    run_([&] { windows_.storeMarks(projectOf(editor.component())); });
}

void MarkCommands::clearBreakpoints() {
    const auto* const editor = windows_.current();
    if (!editor) return;
    const auto project = projectOf(editor->component());
    windows_.clearMarks(project, &ComponentMarks::breakpoints);
    run_([&] { windows_.storeMarks(project); });
}

} // namespace workbench
