#include "Host/registry/store_file.h"
#include "Host/files/atomic_save.h"
#include "Host/registry/reg_status.h"
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {
namespace {

constexpr std::int64_t kSchemaVersion = 1;
constexpr auto kSchema = "CREATE TABLE keys(id INTEGER PRIMARY KEY AUTOINCREMENT, parent INTEGER, path BLOB UNIQUE, "
                         "name BLOB);"
                         "CREATE INDEX keys_by_parent ON keys(parent, path);"
                         "CREATE TABLE data(position INTEGER PRIMARY KEY AUTOINCREMENT, key INTEGER, folded BLOB, "
                         "name BLOB, type INTEGER, bytes BLOB, UNIQUE(key, folded));"
                         "INSERT INTO keys VALUES(1, NULL, x'', x'');"
                         "PRAGMA user_version = 1;";

void requireSchema(SqliteConnection& db) {
    SqliteStatement version(db, "PRAGMA user_version");
    if (!version.step() || version.integer(0) != kSchemaVersion) throw RegFailure{RegStatus::NotRegistryFile};
}

[[noreturn]] void throwStoreErrno(int error) {
    if (error == ENOSPC || error == EDQUOT) throw RegFailure{RegStatus::DiskFull};
    if (error == EIO) throw RegFailure{RegStatus::IoFailed};
    throw RegFailure{RegStatus::AccessDenied};
}

void makeStoreFolder(const std::filesystem::path& folder) {
    if (folder.empty() || ::access(folder.c_str(), F_OK) == 0) return;
    makeStoreFolder(folder.parent_path());
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) throwStoreErrno(errno);
}

/// An empty file with the access rights of its folder, deleted at the end.
class StoreDraft {
public:
    explicit StoreDraft(const std::filesystem::path& folder) : path_((folder / ".store-XXXXXX").string()) {
        const int made = ::mkostemp(path_.data(), O_CLOEXEC);
        struct stat state {};
        if (made < 0 || ::stat(folder.c_str(), &state) != 0) throwStoreErrno(errno);
        ::fchmod(made, state.st_mode & 0666);
        ::close(made);
    }
    StoreDraft(const StoreDraft&) = delete;
    StoreDraft& operator=(const StoreDraft&) = delete;
    ~StoreDraft() { ::unlink(path_.c_str()); }
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

void fillStore(const std::string& path) {
    SqliteConnection fresh(path, SqliteConnection::Mode::Existing);
    fresh.run("PRAGMA journal_mode = WAL");
    fresh.run(kSchema);
}

} // namespace

bool canMakeStoreIn(const std::filesystem::path& folder) {
    struct stat state {};
    if (::stat(folder.c_str(), &state) == 0) return S_ISDIR(state.st_mode) && !isReadOnly(folder);
    return errno == ENOENT && folder.has_relative_path() && canMakeStoreIn(folder.parent_path());
}

void makeStoreFile(const std::filesystem::path& file) {
    const auto folder = file.parent_path();
    if (!canMakeStoreIn(folder)) throw RegFailure{RegStatus::AccessDenied};
    makeStoreFolder(folder);
    // Linked when it is complete, so that no process sees a store without its tables.
    const StoreDraft draft(folder);
    fillStore(draft.path());
    if (::link(draft.path().c_str(), file.c_str()) != 0 && errno != EEXIST) throwStoreErrno(errno);
}

StoreFile openStoreFile(const std::filesystem::path& file) {
    StoreFile store{SqliteConnection(file, SqliteConnection::Mode::Existing)};
    try {
        requireSchema(store.connection);
    } catch (const RegFailure& failure) {
        // SQLite cannot create its lock files in a read-only folder.
        if (failure.status != RegStatus::AccessDenied) throw;
        store = {SqliteConnection(file, SqliteConnection::Mode::Immutable), true};
        requireSchema(store.connection);
    }
    store.connection.run("PRAGMA synchronous = NORMAL");
    return store;
}

} // namespace host
