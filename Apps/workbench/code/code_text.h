#pragma once
// Transfers the lines of a component's code between the host and an editor.
#include "Add-in/platform/host_project.h"
#include <QString>
#include <functional>

namespace workbench {

/// Returns the whole code of a module, its lines separated by LF.
QString codeOf(vbide::CodeModule& module);

/// An edit of the editor's text, beginning in line `first` (from 0).
struct LineEdit {
    int first = 0;
    /// The number of lines added; negative if lines were removed.
    int added = 0;
    /// Whether the edit was at the start of the line, so that the old line moved, along with its hidden attributes.
    bool atStart = false;
};

/// Makes the same edit in the module. `line` returns a line of the editor after the edit. Error 5 for a character that
/// the file's code page lacks.
void passOn(vbide::CodeModule& module, const LineEdit& edit, const std::function<std::string(int)>& line);

} // namespace workbench
