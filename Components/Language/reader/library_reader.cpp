#include "Components/Language/reader/library_reader.h"
#include "Components/Language/reader/member_reader.h"

namespace language {
namespace {

void readAbsence(LineReader& line, auto& of) {
    if (!line.acceptWord("absent")) line.fail("unknown word");
    of.onDevices = false;
    of.instead = line.quoted();
}

void readAttributes(LineReader& line, Library& library) {
    while (!line.atEnd())
        if (line.acceptWord("guid"))
            library.guids.emplace_back(line.quoted());
        else
            readAbsence(line, library);
    library.help = line.help();
}

void readAttributes(LineReader& line, Group& group) {
    while (!line.atEnd())
        if (line.acceptWord("creatable"))
            group.creatable = true;
        else if (line.acceptWord("control"))
            group.control = true;
        else if (line.acceptWord("global"))
            group.global = true;
        else if (line.acceptWord("open"))
            group.open = true;
        else
            readAbsence(line, group);
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
    if (!readHead(line)) readContents(line);
}

bool LibraryReader::readHead(LineReader& line) {
    if (line.acceptWord("Library"))
        openLibrary(line);
    else if (line.acceptWord("Module"))
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

void LibraryReader::openLibrary(LineReader& line) {
    auto& library = libraries_.emplace_back();
    library.name = line.name();
    readAttributes(line, library);
    group_ = nullptr;
}

void LibraryReader::openGroup(GroupKind kind, LineReader& line) {
    if (libraries_.empty()) line.fail("expected Library and its name");
    group_ = &libraries_.back().groups.emplace_back();
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
