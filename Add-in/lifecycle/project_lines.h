#pragma once
// The lines of a closed project file, and its section "Quinloft Global" among them.
#include "Add-in/platform/files.h"
#include <string>
#include <string_view>
#include <vector>

namespace fernwick {

using ProjectLines = std::vector<std::string>;

/// Errors go to the caller.
ProjectLines readProjectLines(FileSystemObject& files, const std::string& path);

/// The text before the first "=", and the text after it.
std::string keyOfLine(const std::string& line);
std::string valueOfLine(const std::string& line);

/// Whether a line begins a section.
bool isSectionHeader(std::string_view line);

/// Follows the lines of a project file into its global section and out of it.
class GlobalSection {
public:
    /// Whether this line is in the section.
    bool holds(std::string_view line);
    bool isInside() const { return inside_; }

private:
    bool inside_ = false;
};

/// The first global section. Keys are found regardless of letter case, as in the host.
class GlobalLines {
public:
    explicit GlobalLines(ProjectLines& lines);

    bool has(std::string_view key) { return find(key) != nullptr; }
    /// "" if the key is missing.
    std::string value(std::string_view key);
    /// A missing key is added after the last line of the section that is not blank.
    void set(const std::string& key, const std::string& value);
    void setIfMissing(const std::string& key, const std::string& value);

private:
    std::string* find(std::string_view key);
    void append(std::string line);

    ProjectLines& lines_;
    std::size_t begin_ = 0, end_ = 0;
};

} // namespace fernwick
