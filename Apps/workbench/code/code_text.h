#pragma once
// The lines of a component's code on their way between the host and an editor.
#include "Add-in/platform/host_project.h"
#include <QString>
#include <functional>

namespace workbench {

/// The whole code of a module, with LF between its lines.
QString codeOf(vbide::CodeModule& module);

/// What the user did to the editor's text, from line `first` (from 0) on.
struct LineEdit {
    int first = 0;
    /// So many lines more, or less where it is negative.
    int added = 0;
    /// Where the line begins: it is what stood there that moved, and its hidden attributes go with it.
    bool atStart = false;
};

/// Does the same to the module. `line` gives the editor's line as it is now. Error 5 for a character that the file's
/// code page lacks.
void passOn(vbide::CodeModule& module, const LineEdit& edit, const std::function<std::string(int)>& line);

} // namespace workbench
