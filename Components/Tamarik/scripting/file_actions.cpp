#include "Components/Tamarik/scripting/file_actions.h"
#include "Basic/case_folding.h"
#include "Basic/runtime_error.h"
#include "Components/Tamarik/files/paths.h"
#include "Components/Tamarik/files/stored_files.h"
#include "Components/Tamarik/scripting/script_paths.h"
#include "Components/Tamarik/values/encoding.h"
#include <algorithm>

namespace tamarik {

namespace {

/// What looking at one file or folder costs.
constexpr std::uint64_t kEntryBytes = 1024;

void demand(bool condition, int error) {
    if (!condition) throw basic::RuntimeError(error);
}

bool isInside(const std::string& path, const std::string& folder) {
    return folder.empty() || path == folder || path.starts_with(folder + "/");
}

/// Only the last name of a path may be a pattern, and it must be a name.
std::vector<std::string> foundAt(Session& session, std::u16string_view path, bool wantsFolders, int error) {
    const auto name = fileNameIn(path);
    demand(!name.empty() && name != u"." && name != u".." && !endsWithSeparator(path), error);
    const auto folder = parentFolderIn(path);
    demand(folder.empty() || isFolder(session, session.files.resolve(toUtf8(folder))), basic::kPathNotFound);
    auto found = session.files.matches(toUtf8(path), wantsFolders);
    if (wantsFolders) std::erase_if(found, [&](const std::string& each) { return !isFolder(session, each); });
    demand(!found.empty(), error);
    return found;
}

void requireClosed(const Session& session, const std::string& path) {
    demand(!session.files.isOpen(path), basic::kPermissionDenied);
}

/// Everything below a folder, none of it open.
std::vector<std::string> closedBelow(Session& session, const std::string& folder) {
    auto found = allBelow(session.files.store(), folder);
    session.charge(found.size() * kEntryBytes);
    for (const auto& each : found) requireClosed(session, each);
    return found;
}

} // namespace

bool isFile(const Session& session, const std::string& path) {
    const auto info = session.files.store().find(path);
    return info && !info->isFolder;
}

bool isFolder(const Session& session, const std::string& path) {
    const auto info = session.files.store().find(path);
    return info && info->isFolder;
}

std::vector<std::string> filesAt(Session& session, std::u16string_view path) {
    return foundAt(session, path, false, basic::kFileNotFound);
}

std::vector<std::string> foldersAt(Session& session, std::u16string_view path) {
    return foundAt(session, path, true, basic::kPathNotFound);
}

std::string targetOf(const Session& session, std::u16string_view text, const std::string& source, bool isOneOfSeveral) {
    demand(!text.empty(), basic::kInvalidProcedureCall);
    const std::string path = session.files.resolve(toUtf8(text));
    if (!endsWithSeparator(text) && !isOneOfSeveral) return path;
    demand(isFolder(session, path), basic::kPathNotFound);
    return session.files.resolve(shownPath(pathIn(path, nameOf(source))));
}

std::string pathOfName(const Session& session, const std::string& folder, std::u16string_view name) {
    demand(!name.empty() && fileNameIn(name) == name, basic::kInvalidProcedureCall);
    return session.files.resolve(shownPath(pathIn(folder, toUtf8(name))));
}

void copyFile(Session& session, const std::string& source, const std::string& target, bool replaces) {
    FileStore& store = session.files.store();
    demand(!isFolder(session, target) && source != target, basic::kPermissionDenied);
    if (const auto old = store.find(target)) {
        demand(replaces, basic::kFileAlreadyExists);
        demand(!old->isReadOnly, basic::kPermissionDenied);
    }
    requireClosed(session, source);
    requireClosed(session, target);
    session.charge(kEntryBytes + copyContents(store, source, target));
}

void copyFolder(Session& session, const std::string& source, const std::string& target, bool replaces) {
    demand(!isInside(target, source), basic::kPermissionDenied);
    const auto all = closedBelow(session, source);
    demand(!isFile(session, target), basic::kFileAlreadyExists);
    if (!isFolder(session, target)) createFolder(session, target);
    for (const auto& each : all) {
        const std::string copy = target + each.substr(source.size());
        if (!isFolder(session, each))
            copyFile(session, each, copy, replaces);
        else if (!isFolder(session, copy))
            createFolder(session, copy);
    }
}

void move(Session& session, const std::string& source, const std::string& target) {
    FileStore& store = session.files.store();
    requireClosed(session, source);
    if (isFolder(session, source)) {
        demand(!source.empty() && (source == target || !isInside(target, source)), basic::kPermissionDenied);
        (void)closedBelow(session, source);
    }
    if (source == target) return;
    demand(!store.find(target) || basic::equalNoCase(source, target), basic::kFileAlreadyExists);
    demand(isFolder(session, folderOf(target)), basic::kPathNotFound);
    store.rename(source, target);
}

void deleteFile(Session& session, const std::string& path, bool force) {
    FileStore& store = session.files.store();
    const auto info = store.find(path);
    demand(info.has_value(), basic::kFileNotFound);
    requireClosed(session, path);
    demand(!info->isReadOnly || force, basic::kPermissionDenied);
    if (info->isReadOnly) store.setReadOnly(path, false);
    session.charge(kEntryBytes);
    store.remove(path);
}

void deleteFolder(Session& session, const std::string& path, bool force) {
    demand(!path.empty(), basic::kPermissionDenied);
    const auto all = closedBelow(session, path);
    for (auto each = all.rbegin(); each != all.rend(); ++each) {
        if (isFolder(session, *each))
            session.files.store().removeFolder(*each);
        else
            deleteFile(session, *each, force);
    }
    session.files.store().removeFolder(path);
}

void createFolder(Session& session, const std::string& path) {
    demand(!session.files.store().find(path), basic::kFileAlreadyExists);
    demand(isFolder(session, folderOf(path)), basic::kPathNotFound);
    session.files.store().makeFolder(path);
}

} // namespace tamarik
