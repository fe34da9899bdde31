#include "Host/registry/sqlite.h"
#include "Host/registry/reg_status.h"
#include <fmt/format.h>
#include <sqlite3.h>

namespace host {
namespace {

constexpr int kBusyTimeoutMs = 5000;

RegStatus statusOfSqlite(int code) {
    switch (code & 0xFF) {
    case SQLITE_PERM:
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_AUTH: return RegStatus::AccessDenied;
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return RegStatus::Busy;
    case SQLITE_FULL: return RegStatus::DiskFull;
    case SQLITE_CORRUPT: return RegStatus::Corrupt;
    case SQLITE_NOTADB: return RegStatus::NotRegistryFile;
    case SQLITE_NOMEM:
    case SQLITE_TOOBIG: return RegStatus::OutOfMemory;
    case SQLITE_ERROR: return RegStatus::NotRegistryFile; // unknown tables
    default: return RegStatus::IoFailed;
    }
}

void requireSqlite(int code) {
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) throw RegFailure{statusOfSqlite(code)};
}

/// The path as an SQLite file: URI, which can have options.
std::string sqliteAddress(const std::filesystem::path& file, const char* options) {
    std::string address = "file:";
    for (const char c : file.native()) {
        if (c == '%' || c == '?' || c == '#')
            address += fmt::format("%{:02x}", static_cast<unsigned char>(c));
        else
            address += c;
    }
    return address.append(options);
}

int sqliteFlags(SqliteConnection::Mode mode) {
    switch (mode) {
    case SqliteConnection::Mode::Create: return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    case SqliteConnection::Mode::Existing: return SQLITE_OPEN_READWRITE;
    case SqliteConnection::Mode::Immutable: break;
    }
    return SQLITE_OPEN_READONLY;
}

} // namespace

// Closed when the last of its statements is finalized, in whatever order a move replaces them.
void SqliteConnection::Close::operator()(sqlite3* db) const { sqlite3_close_v2(db); }

SqliteConnection::SqliteConnection(const std::filesystem::path& file, Mode mode) {
    const auto address = sqliteAddress(file, mode == Mode::Immutable ? "?immutable=1" : "");
    sqlite3* db = nullptr;
    const int code = sqlite3_open_v2(address.c_str(), &db, sqliteFlags(mode) | SQLITE_OPEN_URI, nullptr);
    db_.reset(db); // a handle must be closed even if opening failed
    requireSqlite(code);
    sqlite3_busy_timeout(db, kBusyTimeoutMs);
}

void SqliteConnection::run(const char* sql) { requireSqlite(sqlite3_exec(db_.get(), sql, nullptr, nullptr, nullptr)); }

bool SqliteConnection::readOnly() const { return sqlite3_db_readonly(db_.get(), "main") != 0; }

void SqliteConnection::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

sqlite3_stmt* SqliteConnection::prepared(const char* sql) {
    const auto known = statements_.find(sql);
    if (known != statements_.end()) return known->second.get();
    sqlite3_stmt* statement = nullptr;
    requireSqlite(sqlite3_prepare_v3(db_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
    return statements_.emplace(sql, statement).first->second.get();
}

SqliteStatement::~SqliteStatement() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
}

void SqliteStatement::bind(std::int64_t number) { requireSqlite(sqlite3_bind_int64(statement_, ++bound_, number)); }

void SqliteStatement::bind(const std::string& text) {
    // Blobs are compared bytewise and may contain NULs.
    requireSqlite(sqlite3_bind_blob64(statement_, ++bound_, text.data(), text.size(), SQLITE_TRANSIENT));
}

bool SqliteStatement::step() {
    const int code = sqlite3_step(statement_);
    requireSqlite(code);
    return code == SQLITE_ROW;
}

std::int64_t SqliteStatement::integer(int column) const { return sqlite3_column_int64(statement_, column); }

std::string SqliteStatement::bytes(int column) const {
    const auto* data = static_cast<const char*>(sqlite3_column_blob(statement_, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
    return data ? std::string(data, size) : std::string();
}

SqliteTransaction::~SqliteTransaction() {
    if (open_) sqlite3_exec(on_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

} // namespace host
