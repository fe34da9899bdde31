#include "Apps/workbench/unsaved/journal_folder.h"
#include "Apps/workbench/base/state_folder.h"
#include "Apps/workbench/base/text.h"
#include "Host/files/system_error.h"
#include <QDir>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace workbench {

namespace {

constexpr auto kLockName = "lock";

/// False if the locked file was removed.
bool stillStands(int lock, const std::string& path) {
    struct stat held {
    }, there{};
    return ::fstat(lock, &held) == 0 && ::stat(path.c_str(), &there) == 0 && held.st_ino == there.st_ino;
}

} // namespace

QString journalBase() { return stateFolder() + "/journal"; }

std::shared_ptr<JournalFolder> JournalFolder::locked(const QString& path) {
    const auto file = text(path + "/" + kLockName);
    const int lock = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (lock < 0) return nullptr;
    std::shared_ptr<JournalFolder> folder(new JournalFolder(path, lock));
    if (::flock(lock, LOCK_EX | LOCK_NB) == 0 && stillStands(lock, file)) return folder;
    folder->path_.clear(); // not ours to remove
    return nullptr;
}

std::shared_ptr<JournalFolder> JournalFolder::create(const QString& base) {
    QDir().mkpath(base);
    // another program may mistake a new folder without a lock for an abandoned one and remove it
    constexpr int kTries = 10;
    for (int tries = 0; tries < kTries; ++tries) {
        auto pattern = text(base + "/XXXXXX");
        if (!::mkdtemp(pattern.data())) throw host::systemError(errno, "cannot be made", pattern);
        if (auto folder = locked(qt(pattern))) return folder;
    }
    throw host::systemError(EBUSY, "cannot be made", text(base));
}

std::vector<std::shared_ptr<JournalFolder>> JournalFolder::leftBehind(const QString& base) {
    std::vector<std::shared_ptr<JournalFolder>> all;
    const QDir above(base);
    for (const auto& name : above.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time | QDir::Reversed)) {
        auto folder = locked(above.filePath(name));
        if (folder && !folder->journals().isEmpty()) all.push_back(std::move(folder));
    }
    return all;
}

JournalFolder::~JournalFolder() {
    const QDir folder(path_);
    if (!path_.isEmpty() && folder.entryList(QDir::Files | QDir::Hidden) == QStringList(kLockName)) {
        ::unlink(text(path_ + "/" + kLockName).c_str());
        ::rmdir(text(path_).c_str());
    }
    ::close(lock_);
}

QStringList JournalFolder::journals() const {
    QStringList paths;
    const QDir folder(path_);
    for (const auto& name : folder.entryList({"*.journal"}, QDir::Files, QDir::Time | QDir::Reversed))
        paths << folder.filePath(name);
    return paths;
}

} // namespace workbench
