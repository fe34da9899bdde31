#pragma once
// Makes the model of a library from its description, which may be in several texts.
#include "Components/Language/library.h"
#include "Components/Language/reader/line_reader.h"
#include <map>

namespace language {

class LibraryReader {
public:
    /// Errors: std::invalid_argument, as for readLibrary.
    void read(std::string_view text);
    [[nodiscard]] Library take() && { return std::move(library_); }

private:
    void readLine(LineReader& line);
    bool readHead(LineReader& line);
    void readContents(LineReader& line);
    void openGroup(GroupKind kind, LineReader& line);
    void include(LineReader& line);
    Group& current(const LineReader& line);

    Library library_;
    /// Members that several classes have, by the name of the list.
    std::map<std::string, Group, std::less<>> shared_;
    Group* group_ = nullptr;
};

} // namespace language
