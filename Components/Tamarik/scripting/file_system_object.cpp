#include "Components/Tamarik/scripting/file_system_object.h"
#include "Basic/case_folding.h"
#include "Components/Tamarik/files/paths.h"
#include "Components/Tamarik/scripting/entries.h"
#include "Components/Tamarik/scripting/file_actions.h"
#include "Components/Tamarik/scripting/guarded.h"
#include "Components/Tamarik/scripting/script_paths.h"
#include "Components/Tamarik/scripting/text_files.h"

namespace tamarik {

namespace {

enum SpecialFolder : std::int32_t { TemporaryFolder = 2 };

using PathFunction = std::u16string_view (*)(std::u16string_view);

template <PathFunction F>
void partOfPath(LibraryObject&, MemberCall& call) {
    returnText(call, F(textArgument(call, 0)));
}

void joinPath(LibraryObject&, MemberCall& call) {
    returnText(call, buildPath(textArgument(call, 0), textArgument(call, 1)));
}

void absolutePath(LibraryObject&, MemberCall& call) {
    const std::u16string given = textArgument(call, 0);
    const auto current = namesOf("\\" + call.session.files.currentFolder(), {});
    std::string path;
    for (const auto& name : namesOf(given.empty() ? "." : toUtf8(given), current))
        path += (path.empty() ? "" : "/") + name;
    const bool hasLetter = given.size() >= 2 && given[1] == u':';
    returnUtf8(call, shownPath(path, hasLetter ? toUtf8(driveIn(given)) : "C:"));
}

/// What no file can be named does not exist.
template <bool (*Exists)(const Session&, const std::string&)>
void exists(LibraryObject&, MemberCall& call) {
    bool found = false;
    const auto err = basic::attempt([&] { found = Exists(call.session, pathArgument(call, 0)); });
    call.result = ofBoolean(err.Number == 0 && found);
}

/// All drives are the application's folder; one of them is reported.
void driveExists(LibraryObject&, MemberCall& call) {
    const std::string drive = toUtf8(textArgument(call, 0));
    call.result = ofBoolean(basic::equalNoCase(drive.substr(0, 2), "C:") || basic::equalNoCase(drive, "C"));
}

void makeTemporaryName(LibraryObject& object, MemberCall& call) {
    returnUtf8(call, static_cast<FileSystemObject&>(object).temporaryName());
}

template <bool Folders>
void findEntry(LibraryObject&, MemberCall& call) {
    const std::string path = pathArgument(call, 0);
    if (!(Folders ? isFolder : isFile)(call.session, path))
        throw basic::RuntimeError(Folders ? basic::kPathNotFound : basic::kFileNotFound);
    call.result = ofObject(makeEntry(call.session.heap, path, Folders));
}

/// Devices have no folders of a system; temporary files are the application's.
void specialFolder(LibraryObject&, MemberCall& call) {
    if (longOf(call[0]) != TemporaryFolder) throw basic::RuntimeError(basic::kPathNotFound);
    call.result = ofObject(makeEntry(call.session.heap, "", true));
}

void newFolder(LibraryObject&, MemberCall& call) {
    const std::string path = pathArgument(call, 0);
    createFolder(call.session, path);
    call.result = ofObject(makeEntry(call.session.heap, path, true));
}

void createTextFile(LibraryObject&, MemberCall& call) {
    call.result =
        ofObject(createText(call.session, pathArgument(call, 0), flagOr(call[1], true), flagOr(call[2], false)));
}

void openTextFile(LibraryObject&, MemberCall& call) {
    call.result = ofObject(openText(call.session, pathArgument(call, 0), call[1], flagOr(call[2], false), call[3]));
}

/// Calls act(source, target) for all that the first argument fits; the second says where to.
template <class F>
void forEachTarget(MemberCall& call, const std::vector<std::string>& sources, F act) {
    const std::u16string target = textArgument(call, 1);
    const bool isPattern = tamarik::isPattern(toUtf8(textArgument(call, 0)));
    for (const auto& source : sources) act(source, targetOf(call.session, target, source, isPattern));
}

template <bool Folders>
void copyMatches(LibraryObject&, MemberCall& call) {
    const bool replaces = flagOr(call[2], true);
    const auto sources = (Folders ? foldersAt : filesAt)(call.session, textArgument(call, 0));
    forEachTarget(call, sources, [&](const std::string& source, const std::string& target) {
        (Folders ? copyFolder : copyFile)(call.session, source, target, replaces);
    });
}

template <bool Folders>
void moveMatches(LibraryObject&, MemberCall& call) {
    const auto sources = (Folders ? foldersAt : filesAt)(call.session, textArgument(call, 0));
    forEachTarget(call, sources,
                  [&](const std::string& source, const std::string& target) { move(call.session, source, target); });
}

template <bool Folders>
void deleteMatches(LibraryObject&, MemberCall& call) {
    const bool force = flagOr(call[1], false);
    for (const auto& each : (Folders ? foldersAt : filesAt)(call.session, textArgument(call, 0)))
        (Folders ? deleteFolder : deleteFile)(call.session, each, force);
}

} // namespace

std::string FileSystemObject::temporaryName() {
    constexpr std::uint32_t kDigits = 5;
    auto number = static_cast<std::uint32_t>(static_cast<double>(names_.next()) * (1U << 4 * kDigits));
    std::string digits;
    for (std::uint32_t i = 0; i < kDigits; ++i, number /= 16) digits += "0123456789ABCDEF"[number % 16];
    return "rad" + digits + ".tmp";
}

std::span<const LibraryMember> FileSystemObject::members() const {
    using enum LibraryMember::Uses;
    static constexpr LibraryMember kMembers[] = {
        {"BuildPath", "Path Name", Read, &joinPath},
        {"GetFileName", "Path", Read, &partOfPath<&fileNameIn>},
        {"GetBaseName", "Path", Read, &partOfPath<&baseNameIn>},
        {"GetExtensionName", "Path", Read, &partOfPath<&extensionIn>},
        {"GetParentFolderName", "Path", Read, &partOfPath<&parentFolderIn>},
        {"GetDriveName", "Path", Read, &partOfPath<&driveIn>},
        {"GetAbsolutePathName", "Path", Read, &absolutePath},
        {"GetTempName", "", Read, &makeTemporaryName},
        {"FileExists", "FileSpec", Read, &exists<&isFile>},
        {"FolderExists", "FolderSpec", Read, &exists<&isFolder>},
        {"DriveExists", "DriveSpec", Read, &driveExists},
        {"GetFile", "FilePath", Read, &findEntry<false>},
        {"GetFolder", "FolderPath", Read, &findEntry<true>},
        {"GetSpecialFolder", "SpecialFolder", Read, &specialFolder},
        {"CreateFolder", "Path", Read, &guarded<&newFolder>},
        {"CreateTextFile", "FileName ? Overwrite Unicode", Read, &guarded<&createTextFile>},
        {"OpenTextFile", "FileName ? IOMode Create Format", Read, &guarded<&openTextFile>},
        {"CopyFile", "Source Destination ? OverWriteFiles", Read, &guarded<&copyMatches<false>>},
        {"CopyFolder", "Source Destination ? OverWriteFiles", Read, &guarded<&copyMatches<true>>},
        {"MoveFile", "Source Destination", Read, &guarded<&moveMatches<false>>},
        {"MoveFolder", "Source Destination", Read, &guarded<&moveMatches<true>>},
        {"DeleteFile", "FileSpec ? Force", Read, &guarded<&deleteMatches<false>>},
        {"DeleteFolder", "FolderSpec ? Force", Read, &guarded<&deleteMatches<true>>},
        {"Drives", "", Read, &absentMember},
        {"GetDrive", "DriveSpec", Read, &absentMember},
        {"GetFileVersion", "FileName", Read, &absentMember},
        {"GetStandardStream", "StandardStreamType ? Unicode", Read, &absentMember},
    };
    return kMembers;
}

} // namespace tamarik
