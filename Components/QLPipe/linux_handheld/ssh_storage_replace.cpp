// Replacing and removing files and folders on a handheld.
#include "Components/QLPipe/base/device_names.h"
#include "Components/QLPipe/base/ssh_messages.h"
#include "Components/QLPipe/linux_handheld/ssh_storage.h"
#include <algorithm>

namespace qlpipe {

namespace {

/// Begins the names of folders that are moved up to be removed. A number follows.
constexpr std::string_view kMovedPrefix = ".fernwick-moved-";
constexpr std::size_t kRemovalsUnderWay = 64;
/// Holds replaced folders until the new ones are in place.
constexpr char kReplacedFolder[] = ".fernwick-replaced";

std::string keptName(const std::string& name) {
    std::string kept;
    for (const char c : name) kept += c == '/' ? "%2F" : c == '%' ? "%25" : std::string(1, c);
    return kept;
}

/// Returns the original name, or "" for a name that keptName does not produce.
std::string nameOfKept(const std::string& kept) {
    std::string name;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        const auto code = kept.substr(i, 3);
        if (kept[i] != '%')
            name += kept[i];
        else if (code == "%2F" || code == "%25")
            name += code == "%2F" ? '/' : '%', i += 2;
        else
            return {};
    }
    const auto framed = "/" + name + "/";
    const auto holds = [&](const char* part) { return framed.find(part) != std::string::npos; };
    return holds("//") || holds("/./") || holds("/../") ? "" : name;
}

} // namespace

void SshStorage::replaceFile(const std::string& from, const std::string& to) {
    const auto there = notALink(to, findAsOwner(to));
    if (there && there->isFolder()) throw sshError(SshMessage::NameTaken, {{"path", pathOf(to)}});
    if (there && !client_.renameReplaces()) return replace(from, to);
    demand(client_.rename(pathOf(from), pathOf(to)), "rename", pathOf(from));
}

void SshStorage::replaceFolder(const std::string& from, const std::string& to) {
    const auto there = notALink(to, findAsOwner(to));
    if (there && !there->isFolder()) throw sshError(SshMessage::NotFolder, {{"path", pathOf(to)}});
    folders_.clear();
    if (there) return replace(from, to);
    demand(client_.rename(pathOf(from), pathOf(to)), "rename", pathOf(from));
}

void SshStorage::replace(const std::string& from, const std::string& to) {
    makeOneFolder(pathOf(kReplacedFolder));
    const auto kept = pathOf(kReplacedFolder) + "/" + keptName(to);
    demand(removeTree(kept), "remove", kept);
    if (!find(from)) throw sshError(SshMessage::NotThere, {{"action", "rename"}, {"path", pathOf(from)}});
    demand(client_.rename(pathOf(to), kept), "rename", pathOf(to));
    const auto renamed = client_.rename(pathOf(from), pathOf(to));
    if (!renamed) (void)client_.rename(kept, pathOf(to));
    demand(renamed, "rename", pathOf(from));
    demand(removeTree(kept), "remove", kept);
}

void SshStorage::recover() {
    const auto found = find(kReplacedFolder);
    if (!found || !found->isFolder()) return;
    std::vector<SftpClient::Entry> kept;
    demand(client_.list(pathOf(kReplacedFolder), kept), "list", pathOf(kReplacedFolder));
    for (const auto& entry : kept) putBackOrAway(entry.name);
}

void SshStorage::putBackOrAway(const std::string& kept) {
    const auto name = nameOfKept(kept);
    if (name.empty()) return;
    const auto path = pathOf(kReplacedFolder) + "/" + kept;
    // A leftover takes space but is harmless. The next replacement of this name reports it.
    if (find(name)) return (void)removeTree(path);
    for (const auto& folder : pathPrefixes(folderOf(name))) makeOneFolder(pathOf(folder));
    demand(client_.rename(path, pathOf(name)), "rename", path);
}

void SshStorage::remove(const std::string& name) {
    if (!find(name)) return;
    if (owner_.empty()) beginWork();
    folders_.clear();
    demand(removeTree(pathOf(name)), "remove", pathOf(name));
}

SftpResult SshStorage::removeTree(const std::string& path) {
    Removal removal{path};
    for (;;) {
        const auto before = removal.moved;
        auto result = removeTree(path, removal, 0);
        if (!result || removal.moved == before) return result;
    }
}

SftpResult SshStorage::removeTree(const std::string& path, Removal& removal, std::size_t depth) {
    if (depth > kDeepestFolder)
        return client_.rename(path, removal.top + "/" + std::string(kMovedPrefix) + std::to_string(removal.moved++));
    SftpAttributes found;
    const auto moved = removal.moved;
    auto result = client_.lstat(path, found);
    if (result && found.isFolder()) {
        std::vector<SftpClient::Entry> entries;
        result = client_.list(path, entries);
        if (result) result = removeEntries(path, entries, removal, depth);
        const bool isTopToBeRepeated = depth == 0 && removal.moved != moved;
        if (result && !isTopToBeRepeated) result = client_.removeFolder(path);
    } else if (result)
        result = client_.awaitResult(client_.startRemove(path));
    // Another transfer has already removed it.
    return result.code == kSftpNoSuchFile ? SftpResult{} : result;
}

SftpResult SshStorage::removeEntries(const std::string& folder, const std::vector<SftpClient::Entry>& entries,
                                     Removal& removal, std::size_t depth) {
    SftpResult first;
    std::vector<SftpClient::Request> requests;
    const auto awaitAll = [&] {
        for (const auto request : requests)
            if (auto result = client_.awaitResult(request); !result && result.code != kSftpNoSuchFile && first)
                first = std::move(result);
        requests.clear();
    };
    for (const auto& [name, attributes] : entries) {
        const auto path = folder + "/" + name;
        if (attributes.isFolder() || attributes.permissions == 0) {
            if (auto result = removeTree(path, removal, depth + 1); !result && first) first = std::move(result);
        } else
            requests.push_back(client_.startRemove(path));
        if (requests.size() == kRemovalsUnderWay) awaitAll();
    }
    awaitAll();
    return first;
}

} // namespace qlpipe
