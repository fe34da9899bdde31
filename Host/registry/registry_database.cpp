#include "Host/registry/registry_database.h"
#include "Basic/case_folding.h"
#include "Host/files/atomic_save.h"
#include "Host/registry/reg_status.h"
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {
namespace {

constexpr std::int64_t kRootId = 1;
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

/// Whether a file could be made in `folder`, which may itself have to be made.
bool canMakeIn(const std::filesystem::path& folder) {
    struct stat state {};
    if (::stat(folder.c_str(), &state) == 0) return S_ISDIR(state.st_mode) && !isReadOnly(folder);
    return errno == ENOENT && folder.has_relative_path() && canMakeIn(folder.parent_path());
}

struct UnlinkAtEnd {
    const std::string& path;
    explicit UnlinkAtEnd(const std::string& p) : path(p) {}
    UnlinkAtEnd(const UnlinkAtEnd&) = delete;
    UnlinkAtEnd& operator=(const UnlinkAtEnd&) = delete;
    ~UnlinkAtEnd() { ::unlink(path.c_str()); }
};

} // namespace

void RegistryDatabase::makeFile() const {
    const auto folder = file_->parent_path();
    if (!canMakeIn(folder)) throw RegFailure{RegStatus::AccessDenied};
    makeStoreFolder(folder);
    // Made whole under another name and then linked: nobody ever sees a store without its tables, and of two
    // processes that make it at once the second finds that of the first.
    auto name = (folder / ".store-XXXXXX").string();
    const int made = ::mkostemp(name.data(), O_CLOEXEC);
    struct stat state {};
    if (made < 0 || ::stat(folder.c_str(), &state) != 0) throwStoreErrno(errno);
    ::fchmod(made, state.st_mode & 0666);
    ::close(made);
    const UnlinkAtEnd unlink{name};
    {
        SqliteConnection fresh(name, SqliteConnection::Mode::Existing);
        fresh.run("PRAGMA journal_mode = WAL");
        fresh.run(kSchema);
    }
    if (::link(name.c_str(), file_->c_str()) != 0 && errno != EEXIST) throwStoreErrno(errno);
}

void RegistryDatabase::openFile() {
    SqliteConnection db(*file_, SqliteConnection::Mode::Existing);
    immutable_ = false;
    try {
        requireSchema(db);
    } catch (const RegFailure& failure) {
        // In a folder that we may not write SQLite has no place for its lock files.
        if (failure.status != RegStatus::AccessDenied) throw;
        db = SqliteConnection(*file_, SqliteConnection::Mode::Immutable);
        requireSchema(db);
        immutable_ = true;
    }
    db.run("PRAGMA synchronous = NORMAL");
    connection_ = std::move(db);
}

SqliteConnection* RegistryDatabase::forReading() {
    if (immutable_) connection_.reset(); // its pages are never read again: others' writes would go unseen
    if (!connection_ && file_ && ::access(file_->c_str(), F_OK) == 0) openFile();
    return connection_ ? &*connection_ : nullptr;
}

SqliteConnection& RegistryDatabase::forWriting() {
    if (!isWritable()) throw RegFailure{RegStatus::AccessDenied};
    if (!connection_ && !file_) connection_.emplace().run(kSchema);
    if (!connection_) {
        makeFile();
        openFile();
    }
    return *connection_;
}

bool RegistryDatabase::isWritable() {
    if (!file_) return true;
    if (!forReading()) return canMakeIn(file_->parent_path());
    return !immutable_ && !connection_->readOnly() && !isReadOnly(*file_) && !isReadOnly(file_->parent_path());
}

std::optional<std::int64_t> RegistryDatabase::idOf(SqliteConnection& db, const KeyPath& key) {
    if (key.names().empty()) return kRootId;
    SqliteStatement find(db, "SELECT id FROM keys WHERE path = ?", key.folded());
    if (!find.step()) return std::nullopt;
    return find.integer(0);
}

bool RegistryDatabase::hasKey(const KeyPath& key) {
    if (key.names().empty()) return true;
    auto* db = forReading();
    return db && idOf(*db, key);
}

std::vector<std::string> RegistryDatabase::subkeys(const KeyPath& key) {
    std::vector<std::string> names;
    auto* db = forReading();
    const auto id = db ? idOf(*db, key) : std::nullopt;
    if (!id) return names;
    SqliteStatement rows(*db, "SELECT name FROM keys WHERE parent = ? ORDER BY path", *id);
    while (rows.step()) names.push_back(rows.bytes(0));
    return names;
}

std::vector<NamedRegValue> RegistryDatabase::values(const KeyPath& key) {
    std::vector<NamedRegValue> found;
    auto* db = forReading();
    const auto id = db ? idOf(*db, key) : std::nullopt;
    if (!id) return found;
    SqliteStatement rows(*db, "SELECT name, type, bytes FROM data WHERE key = ? ORDER BY position", *id);
    while (rows.step()) found.push_back({rows.bytes(0), {static_cast<std::uint32_t>(rows.integer(1)), rows.bytes(2)}});
    return found;
}

std::optional<RegValue> RegistryDatabase::value(const KeyPath& key, const std::string& name) {
    auto* db = forReading();
    const auto id = db ? idOf(*db, key) : std::nullopt;
    if (!id) return std::nullopt;
    SqliteStatement row(*db, "SELECT type, bytes FROM data WHERE key = ? AND folded = ?", *id, basic::foldCase(name));
    if (!row.step()) return std::nullopt;
    return RegValue{static_cast<std::uint32_t>(row.integer(0)), row.bytes(1)};
}

std::int64_t RegistryDatabase::makeKey(SqliteConnection& db, const KeyPath& key) {
    auto id = kRootId;
    KeyPath at;
    for (const auto& name : key.names()) {
        at = at / name;
        SqliteStatement(db, "INSERT OR IGNORE INTO keys(parent, path, name) VALUES(?, ?, ?)", id, at.folded(), name)
            .step();
        id = idOf(db, at).value();
    }
    return id;
}

void RegistryDatabase::atomically(const std::function<void()>& writes) {
    if (inTransaction_) return writes();
    SqliteTransaction transaction(forWriting());
    struct Running {
        bool& flag;
        explicit Running(bool& f) : flag(f) { flag = true; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;
        ~Running() { flag = false; }
    } running{inTransaction_};
    writes();
    transaction.commit();
}

bool RegistryDatabase::createKey(const KeyPath& key) {
    bool made = false;
    atomically([&] {
        made = !idOf(*connection_, key);
        makeKey(*connection_, key);
    });
    return made;
}

void RegistryDatabase::setValue(const KeyPath& key, const std::string& name, const RegValue& value) {
    atomically([&] {
        SqliteStatement(*connection_,
                        "INSERT INTO data(key, folded, name, type, bytes) VALUES(?, ?, ?, ?, ?) "
                        "ON CONFLICT DO UPDATE SET type = excluded.type, bytes = excluded.bytes",
                        makeKey(*connection_, key), basic::foldCase(name), name, std::int64_t{value.type}, value.data)
            .step();
    });
}

bool RegistryDatabase::deleteValue(const KeyPath& key, const std::string& name) {
    if (!value(key, name)) return false;
    atomically([&] {
        const auto id = idOf(*connection_, key).value_or(0);
        SqliteStatement(*connection_, "DELETE FROM data WHERE key = ? AND folded = ?", id, basic::foldCase(name))
            .step();
    });
    return true;
}

bool RegistryDatabase::deleteKey(const KeyPath& key) {
    if (!hasKey(key)) return false;
    atomically([&] {
        const auto id = idOf(*connection_, key).value_or(0);
        if (id == kRootId || !subkeys(key).empty()) throw RegFailure{RegStatus::AccessDenied};
        SqliteStatement(*connection_, "DELETE FROM data WHERE key = ?", id).step();
        SqliteStatement(*connection_, "DELETE FROM keys WHERE id = ?", id).step();
    });
    return true;
}

} // namespace host
