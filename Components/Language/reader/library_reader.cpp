#include "Components/Language/reader/library_reader.h"
#include "Components/Language/reader/member_reader.h"

namespace language {
namespace {

void readAttributes(LineReader& line, Group& group) {
    while (!line.atEnd()) {
        if (line.acceptWord("creatable"))
            group.creatable = true;
        else if (line.acceptWord("global"))
            group.global = true;
        else if (line.acceptWord("open"))
            group.open = true;
        else if (line.acceptWord("absent")) {
            group.onDevices = false;
            group.instead = line.quoted();
        } else
            line.fail("unknown word");
    }
    group.help = line.help();
}

} // namespace

void LibraryReader::read(std::string_view text) {
    group_ = nullptr;
    for (int number = 1; !text.empty(); ++number) {
        const auto end = std::min(text.find('\n'), text.size());
        LineReader line(text.substr(0, end), number);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (!line.atEnd()) readLine(line);
    }
}

void LibraryReader::readLine(LineReader& line) {
    if (line.acceptWord("Library")) {
        if (!library_.name.empty()) line.fail("the library already has a name");
        library_.name = line.name();
        if (!line.atEnd()) line.fail("unknown word");
        library_.help = line.help();
    } else if (library_.name.empty())
        line.fail("expected Library and its name");
    else if (!readHead(line))
        readContents(line);
}

bool LibraryReader::readHead(LineReader& line) {
    if (line.acceptWord("Module"))
        openGroup(GroupKind::Module, line);
    else if (line.acceptWord("Class"))
        openGroup(GroupKind::Class, line);
    else if (line.acceptWord("Enum"))
        openGroup(GroupKind::Enum, line);
    else if (line.acceptWord("Shared"))
        group_ = &shared_[std::string(line.name())];
    else
        return false;
    return true;
}

void LibraryReader::openGroup(GroupKind kind, LineReader& line) {
    group_ = &library_.groups.emplace_back();
    group_->kind = kind;
    group_->name = line.name();
    readAttributes(line, *group_);
}

Group& LibraryReader::current(const LineReader& line) {
    if (!group_) line.fail("expected Module, Class, Enum or Shared first");
    return *group_;
}

void LibraryReader::include(LineReader& line) {
    auto& group = current(line);
    while (!line.atEnd()) {
        const auto found = shared_.find(line.name());
        if (found == shared_.end()) line.fail("unknown list of members");
        const auto& members = found->second.members;
        group.members.insert(group.members.end(), members.begin(), members.end());
    }
}

void LibraryReader::readContents(LineReader& line) {
    if (line.acceptWord("Include")) return include(line);
    auto& group = current(line);
    group.members.push_back(group.kind == GroupKind::Enum ? readEnumMember(line) : readMember(line));
}

} // namespace language
