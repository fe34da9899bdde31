// The members of File and Folder, as programs call them.
#include "Components/Tamarik/scripting/entries.h"
#include "Components/Tamarik/files/stored_files.h"
#include "Components/Tamarik/scripting/file_actions.h"
#include "Components/Tamarik/scripting/guarded.h"
#include "Components/Tamarik/scripting/script_paths.h"
#include "Components/Tamarik/scripting/text_files.h"
#include "Components/Tamarik/text/letters.h"
#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

namespace tamarik {

namespace {

Entry& entryIn(LibraryObject& object) { return static_cast<Entry&>(object); }

bool isFolderObject(const LibraryObject& object) { return dynamic_cast<const Folder*>(&object) != nullptr; }

FileInfo entryInfo(LibraryObject& object, MemberCall& call) {
    const std::string& path = entryIn(object).path;
    call.session.files.flush(path);
    const auto info = call.session.files.store().find(path);
    if (!info) throw basic::RuntimeError(isFolderObject(object) ? basic::kPathNotFound : basic::kFileNotFound);
    return *info;
}

void entryName(LibraryObject& object, MemberCall& call) { returnUtf8(call, nameOf(entryIn(object).path)); }
void entryPath(LibraryObject& object, MemberCall& call) { returnUtf8(call, shownPath(entryIn(object).path)); }

void renameEntry(LibraryObject& object, MemberCall& call) {
    (void)entryInfo(object, call);
    Entry& entry = entryIn(object);
    const std::string folder = folderOf(entry.path);
    const std::u16string wanted = textArgument(call, 0);
    std::string target = pathOfName(call.session, folder, wanted);
    // The name of an existing file is found whatever its case, which may be all that changes.
    if (target == entry.path) target = pathIn(folder, toUtf8(wanted));
    move(call.session, entry.path, target);
    entry.path = target;
}

void entryAttributes(LibraryObject& object, MemberCall& call) {
    call.result = ofNumber(attributesOf(entryInfo(object, call), entryIn(object).path));
}

void setEntryAttributes(LibraryObject& object, MemberCall& call) {
    (void)entryInfo(object, call);
    call.session.files.store().setReadOnly(entryIn(object).path, (longOf(call[0]) & vbReadOnly) != 0);
}

/// A store remembers one time.
void entryDate(LibraryObject& object, MemberCall& call) {
    call.result = ofFraction(entryInfo(object, call).changed.days, kDate);
}

std::uint64_t sizeOf(LibraryObject& object, MemberCall& call) {
    const FileInfo info = entryInfo(object, call);
    if (!info.isFolder) return info.size;
    std::uint64_t bytes = 0;
    for (const auto& each : allBelow(call.session.files.store(), entryIn(object).path)) {
        call.session.files.flush(each);
        const auto found = call.session.files.store().find(each);
        bytes += found && !found->isFolder ? found->size : 0;
    }
    return bytes;
}

void entrySize(LibraryObject& object, MemberCall& call) {
    const std::uint64_t bytes = sizeOf(object, call);
    call.result = bytes <= std::numeric_limits<std::int32_t>::max() ? ofNumber(static_cast<std::int32_t>(bytes))
                                                                    : ofFraction(static_cast<double>(bytes));
}

void entryType(LibraryObject& object, MemberCall& call) {
    if (isFolderObject(object)) return returnUtf8(call, "File Folder");
    const std::u16string extension(extensionIn(toUtf16(entryIn(object).path)));
    returnUtf8(call, extension.empty() ? "File" : toUtf8(UCase(extension)) + " File");
}

void parentFolder(LibraryObject& object, MemberCall& call) {
    const std::string& own = entryIn(object).path;
    call.result = ofObject(own.empty() ? nullptr : makeEntry(call.session.heap, folderOf(own), true));
}

void copyEntry(LibraryObject& object, MemberCall& call) {
    (void)entryInfo(object, call);
    const std::string& source = entryIn(object).path;
    const std::string target = targetOf(call.session, textArgument(call, 0), source, false);
    (isFolderObject(object) ? copyFolder : copyFile)(call.session, source, target, flagOr(call[1], true));
}

void moveEntry(LibraryObject& object, MemberCall& call) {
    (void)entryInfo(object, call);
    Entry& entry = entryIn(object);
    const std::string target = targetOf(call.session, textArgument(call, 0), entry.path, false);
    move(call.session, entry.path, target);
    entry.path = target;
}

void deleteEntry(LibraryObject& object, MemberCall& call) {
    (void)entryInfo(object, call);
    (isFolderObject(object) ? deleteFolder : deleteFile)(call.session, entryIn(object).path, flagOr(call[0], false));
}

void openAsTextStream(LibraryObject& object, MemberCall& call) {
    (void)entryInfo(object, call);
    call.result = ofObject(openText(call.session, entryIn(object).path, call[0], false, call[1]));
}

void createTextInFolder(LibraryObject& object, MemberCall& call) {
    (void)entryInfo(object, call);
    const std::string target = pathOfName(call.session, entryIn(object).path, textArgument(call, 0));
    call.result = ofObject(createText(call.session, target, flagOr(call[1], true), flagOr(call[2], false)));
}

template <bool Folders>
void entriesOf(LibraryObject& object, MemberCall& call) {
    (void)entryInfo(object, call);
    call.result =
        ofObject(makeObject<EntryList>(call.session.heap, call.session.files.store(), entryIn(object).path, Folders));
}

using enum LibraryMember::Uses;

constexpr LibraryMember kShared[] = {
    {"Name", "", Read, &entryName},
    {"Name", "Value", Write, &guarded<&renameEntry>},
    {"Path", "", Read, &entryPath},
    {"Size", "", Read, &guarded<&entrySize>},
    {"DateLastModified", "", Read, &guarded<&entryDate>},
    {"DateCreated", "", Read, &guarded<&entryDate>},
    {"DateLastAccessed", "", Read, &guarded<&entryDate>},
    {"Attributes", "", Read, &guarded<&entryAttributes>},
    {"Attributes", "Value", Write, &guarded<&setEntryAttributes>},
    {"ParentFolder", "", Read, &parentFolder},
    {"ShortName", "", Read, &entryName},
    {"ShortPath", "", Read, &entryPath},
    {"Type", "", Read, &entryType},
    {"Copy", "Destination ? OverWriteFiles", Read, &guarded<&copyEntry>},
    {"Move", "Destination", Read, &guarded<&moveEntry>},
    {"Delete", "? Force", Read, &guarded<&deleteEntry>},
    {"Drive", "", Read, &absentMember},
};

constexpr LibraryMember kOfFile[] = {{"OpenAsTextStream", "? IOMode Format", Read, &guarded<&openAsTextStream>}};

constexpr LibraryMember kOfFolder[] = {
    {"Files", "", Read, &guarded<&entriesOf<false>>},
    {"SubFolders", "", Read, &guarded<&entriesOf<true>>},
    {"IsRootFolder", "", Read,
     [](LibraryObject& object, MemberCall& call) { call.result = ofBoolean(entryIn(object).path.empty()); }},
    {"CreateTextFile", "FileName ? Overwrite Unicode", Read, &guarded<&createTextInFolder>},
};

template <std::size_t N>
constexpr auto withShared(const LibraryMember (&own)[N]) {
    std::array<LibraryMember, std::size(kShared) + N> all{};
    std::copy(own, own + N, std::copy(std::begin(kShared), std::end(kShared), all.begin()));
    return all;
}

} // namespace

std::span<const LibraryMember> File::members() const {
    static constexpr auto kMembers = withShared(kOfFile);
    return kMembers;
}

std::span<const LibraryMember> Folder::members() const {
    static constexpr auto kMembers = withShared(kOfFolder);
    return kMembers;
}

} // namespace tamarik
