#pragma once
// Makes models of libraries from their descriptions. A library may be in several texts, and a text may have several.
#include "Components/Language/library.h"
#include "Components/Language/reader/line_reader.h"
#include <map>

namespace language {

class LibraryReader {
public:
    /// Errors: std::invalid_argument, as for readLibrary.
    void read(std::string_view text);
    [[nodiscard]] std::vector<Library> take() && { return std::move(libraries_); }

private:
    void readLine(LineReader& line);
    bool readHead(LineReader& line);
    void readContents(LineReader& line);
    void openLibrary(LineReader& line);
    void openGroup(GroupKind kind, LineReader& line);
    void include(LineReader& line);
    Group& current(const LineReader& line);

    std::vector<Library> libraries_;
    /// Members that several classes have, by the name of the list.
    std::map<std::string, Group, std::less<>> shared_;
    Group* group_ = nullptr;
};

} // namespace language
