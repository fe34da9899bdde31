#pragma once
// A project's workspace (.vbw): the window positions of its components. It belongs to the user, not to the project.
#include "Basic/code_page.h"
#include "Host/files/text_file.h"
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

struct WindowPlace {
    int left = 0, top = 0, right = 0, bottom = 0;
    /// A run of "C" closed, "Z" zoomed, "I" iconic; empty for a plain open window.
    std::string state;
};

struct WorkspaceEntry {
    std::string component;
    WindowPlace code;
    std::optional<WindowPlace> designer;
};

class WorkspaceFile {
public:
    /// Takes any bytes and keeps lines that do not describe a window.
    WorkspaceFile(std::string_view bytes, const basic::CodePage& codePage);

    std::string bytes() const { return joinLines(lines_); }
    const std::vector<WorkspaceEntry>& entries() const { return entries_; }

private:
    std::vector<TextLine> lines_;
    std::vector<WorkspaceEntry> entries_;
};

} // namespace host
