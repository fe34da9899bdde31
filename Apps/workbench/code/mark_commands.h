#pragma once
// The commands for bookmarks and breakpoints. Those of the code window in front do nothing if there is none.
#include "Apps/workbench/base/notice_bar.h"
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/code/code_windows.h"

namespace workbench {

class MarkCommands {
public:
    /// Windows and notice outlive this.
    MarkCommands(CodeWindows& windows, NoticeBar& notice, Run run);

    void toggleBookmark();
    /// To the next bookmark of the project, or the previous one; from the last one to the first.
    void goToBookmark(bool backwards);
    void clearBookmarks();
    void toggleBreakpoint();
    void clearBreakpoints();

private:
    void toggleBreakpoint(CodeEditor& editor, int line);
    using Components = std::vector<vbide::Ref<vbide::VBComponent>>;
    /// The index of a component, and a line.
    using Bookmark = std::pair<std::size_t, int>;
    std::vector<Bookmark> bookmarks(const Components& components);

    CodeWindows& windows_;
    NoticeBar& notice_;
    Run run_;
};

} // namespace workbench
