#pragma once
// A project group (.vbg): projects that are opened together.
#include "Basic/code_page.h"
#include "Host/files/text_file.h"
#include <string>
#include <string_view>
#include <vector>

namespace host {

struct GroupEntry {
    std::string path; ///< as written: relative to the group's folder, with "\"
    bool startUp = false;
    std::size_t line = 0; ///< from 1
};

class GroupFile {
public:
    /// Takes any bytes and keeps lines that do not list a project.
    GroupFile(std::string_view bytes, const basic::CodePage& codePage);

    /// True if the bytes begin like a group.
    static bool looksLikeGroup(std::string_view bytes) noexcept;

    std::string bytes() const { return joinLines(lines_); }
    const std::vector<GroupEntry>& entries() const { return entries_; }

private:
    std::vector<TextLine> lines_;
    std::vector<GroupEntry> entries_;
};

} // namespace host
