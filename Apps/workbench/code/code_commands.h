#pragma once
// The commands of the code window in front. They do nothing if there is none.
#include "Apps/workbench/base/notice_bar.h"
#include "Apps/workbench/code/code_windows.h"

namespace workbench {

class CodeCommands {
public:
    /// Both outlive this.
    CodeCommands(CodeWindows& windows, NoticeBar& notice) : windows_(windows), notice_(notice) {}

    /// To the next procedure, or the previous one.
    void goToProcedure(bool backwards);
    void askForLine(QWidget* parent);
    /// Shows the declaration of the name at the cursor and remembers the cursor's position.
    void showDefinition();
    /// Returns to where showDefinition was used last.
    void showLastPosition();

private:
    CodeWindows& windows_;
    NoticeBar& notice_;
    /// Places at which definitions were asked for, the latest last.
    std::vector<CodePlace> positions_;
};

} // namespace workbench
