// The module FileSystem: files that are not open, and folders.
#include "Components/Tamarik/files/paths.h"
#include "Components/Tamarik/files/stored_files.h"
#include "Components/Tamarik/library/file_function.h"
#include "Components/Tamarik/library/library_natives.h"
#include "Components/Tamarik/values/encoding.h"
#include <algorithm>
#include <limits>

namespace tamarik {

namespace {

FileInfo fileAt(Session& session, const std::string& path) {
    session.files.flush(path);
    const auto info = session.files.store().find(path);
    if (!info) throw basic::RuntimeError(basic::kFileNotFound);
    return *info;
}

FileInfo requireFile(Session& session, const std::string& path) {
    const FileInfo info = fileAt(session, path);
    if (info.isFolder) throw basic::RuntimeError(basic::kFileNotFound);
    return info;
}

std::string resolved(Session& session, std::u16string_view path) { return session.files.resolve(toUtf8(path)); }

TextBlock* nextFound(Session& session) {
    OpenFiles& files = session.files;
    requireArgument(files.hasFound);
    if (files.found.empty()) {
        files.hasFound = false;
        return nullptr;
    }
    const std::string path = std::move(files.found.back());
    files.found.pop_back();
    return madeOfUtf8(session, nameOf(path));
}

TextBlock* dir(Session& session, const Variant& path, std::int32_t attributes) {
    if (path.isMissing()) return nextFound(session);
    OpenFiles& files = session.files;
    const std::string pattern = utf8Of(session, path);
    files.hasFound = true;
    if ((attributes & vbVolume) != 0)
        files.found.clear();
    else
        files.found = files.matches(pattern.empty() ? "*" : pattern, (attributes & vbDirectory) != 0);
    if ((attributes & vbHidden) == 0)
        std::erase_if(files.found, [](const std::string& each) { return isHidden(nameOf(each)); });
    std::reverse(files.found.begin(), files.found.end());
    return nextFound(session);
}

void kill(Session& session, const Variant& path) {
    const auto found = session.files.matches(utf8Of(session, path), false);
    if (found.empty()) throw basic::RuntimeError(basic::kFileNotFound);
    for (const auto& each : found) {
        if (session.files.isOpen(each)) throw basic::RuntimeError(basic::kFileAlreadyOpen);
        session.files.store().remove(each);
    }
}

void makeFolder(Session& session, std::u16string_view path) {
    const std::string stored = resolved(session, path);
    if (session.files.store().find(stored)) throw basic::RuntimeError(basic::kPathFileAccessError);
    session.files.store().makeFolder(stored);
}

void removeFolder(Session& session, std::u16string_view path) {
    session.files.store().removeFolder(resolved(session, path));
}

void renameFile(Session& session, std::u16string_view from, std::u16string_view to) {
    const std::string source = resolved(session, from);
    std::string target = resolved(session, to);
    (void)fileAt(session, source);
    if (session.files.isOpen(source)) throw basic::RuntimeError(basic::kFileAlreadyOpen);
    const bool isSame = basic::equalNoCase(source, target);
    if (session.files.store().find(target) && !isSame) throw basic::RuntimeError(basic::kFileAlreadyExists);
    if (target.starts_with(source + "/")) throw basic::RuntimeError(basic::kPathFileAccessError);
    if (isSame) target = session.files.resolveAsWritten(toUtf8(to)); // another letter case
    if (source != target) session.files.store().rename(source, target);
}

void copyFile(Session& session, std::u16string_view from, std::u16string_view to) {
    const std::string source = resolved(session, from), target = resolved(session, to);
    (void)requireFile(session, source);
    if (session.files.isOpen(source) || session.files.isOpen(target) || source == target)
        throw basic::RuntimeError(basic::kPermissionDenied);
    session.charge(copyContents(session.files.store(), source, target));
}

std::int32_t fileLength(Session& session, std::u16string_view path) {
    const FileInfo info = requireFile(session, resolved(session, path));
    return static_cast<std::int32_t>(
        std::min<std::uint64_t>(info.size, static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())));
}

Variant fileDate(Session& session, std::u16string_view path) {
    return ofFraction(fileAt(session, resolved(session, path)).changed.days, kDate);
}

std::int32_t getAttributes(Session& session, std::u16string_view path) {
    const std::string stored = resolved(session, path);
    return attributesOf(fileAt(session, stored), stored);
}

/// Of the attributes a device has only that a file is read-only.
void setAttributes(Session& session, std::u16string_view path, std::int32_t attributes) {
    requireArgument((attributes & (vbDirectory | vbVolume)) == 0);
    const std::string stored = resolved(session, path);
    (void)fileAt(session, stored);
    session.files.store().setReadOnly(stored, (attributes & vbReadOnly) != 0);
}

void changeFolder(Session& session, std::u16string_view path) { session.files.changeFolder(toUtf8(path)); }

/// All drives are the same one.
void changeDrive(Session&, std::u16string_view drive) {
    if (drive.empty()) return;
    const char16_t letter = drive.front() | 0x20;
    requireArgument(letter >= u'a' && letter <= u'z');
}

TextBlock* currentFolder(Session& session, const Variant&) {
    const std::string folder = session.files.currentFolder();
    return madeOfUtf8(session, "C:" + (folder.empty() ? "\\" : folder));
}

} // namespace

void addFolders(Natives& natives) {
    natives.add("Dir", native<&dir>());
    natives.add("Dir$", native<&dir>());
    natives.add("Kill", native<&kill>());
    natives.add("MkDir", native<&makeFolder>());
    natives.add("RmDir", native<&removeFolder>());
    natives.add("Name", native<&renameFile>());
    natives.add("FileCopy", native<&copyFile>());
    natives.add("FileLen", native<&fileLength>());
    natives.add("FileDateTime", native<&fileDate>());
    natives.add("GetAttr", native<&getAttributes>());
    natives.add("SetAttr", native<&setAttributes>());
    natives.add("ChDir", native<&changeFolder>());
    natives.add("ChDrive", native<&changeDrive>());
    addPlainForms<&currentFolder>(natives, "CurDir");
}

} // namespace tamarik
