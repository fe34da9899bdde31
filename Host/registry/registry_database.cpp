#include "Host/registry/registry_database.h"
#include "Basic/case_folding.h"
#include "Host/files/atomic_save.h"
#include "Host/registry/reg_status.h"
#include "Host/registry/store_file.h"
#include "Host/system/scoped_flag.h"
#include <unistd.h>

namespace host {
namespace {

constexpr std::int64_t kRootId = 1;
} // namespace

void RegistryDatabase::open() {
    auto store = openStoreFile(file_);
    immutable_ = store.immutable;
    connection_ = std::move(store.connection);
}

SqliteConnection* RegistryDatabase::forReading() {
    if (immutable_) connection_.reset(); // it never rereads its pages and would miss writes of other processes
    if (!connection_ && ::access(file_.c_str(), F_OK) == 0) open();
    return connection_ ? &*connection_ : nullptr;
}

SqliteConnection& RegistryDatabase::forWriting() {
    if (!isWritable()) throw RegFailure{RegStatus::AccessDenied};
    if (!connection_) {
        makeStoreFile(file_);
        open();
    }
    return *connection_;
}

bool RegistryDatabase::isWritable() {
    if (!forReading()) return canMakeStoreIn(file_.parent_path());
    return !immutable_ && !connection_->readOnly() && !isReadOnly(file_) && !isReadOnly(file_.parent_path());
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
    const ScopedFlag running(inTransaction_);
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
