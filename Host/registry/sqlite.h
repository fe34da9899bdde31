#pragma once
// The part of SQLite that the registry store needs. Every failure is a RegFailure.
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

struct sqlite3;
struct sqlite3_stmt;

namespace host {

class SqliteConnection {
public:
    enum class Mode {
        Create,    ///< for writing; creates the file
        Existing,  ///< for writing if permitted, otherwise for reading
        Immutable, ///< for reading in a folder where SQLite cannot create its lock files
    };
    SqliteConnection(const std::filesystem::path& file, Mode mode);

    /// Runs statements without parameters and results.
    void run(const char* sql);
    bool readOnly() const;
    sqlite3* handle() const { return db_.get(); }
    /// The statement of this text, ready for its parameters. The connection owns it.
    sqlite3_stmt* prepared(const char* sql);

private:
    struct Close {
        void operator()(sqlite3* db) const;
    };
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    std::unique_ptr<sqlite3, Close> db_;
    std::map<std::string, std::unique_ptr<sqlite3_stmt, Finalize>, std::less<>> statements_;
};

/// One statement with its parameters in order. It is prepared once for each connection; two with the same text must not
/// be in use at the same time.
class SqliteStatement {
public:
    template <class... P>
    SqliteStatement(SqliteConnection& on, const char* sql, const P&... parameters) : statement_(on.prepared(sql)) {
        (bind(parameters), ...);
    }
    SqliteStatement(const SqliteStatement&) = delete;
    SqliteStatement& operator=(const SqliteStatement&) = delete;
    ~SqliteStatement();
    /// True while there is a row.
    bool step();
    std::int64_t integer(int column) const;
    std::string bytes(int column) const;

private:
    void bind(std::int64_t number);
    void bind(const std::string& text);

    sqlite3_stmt* statement_;
    int bound_ = 0;
};

/// Holds the write lock for its lifetime and rolls back unless committed.
class SqliteTransaction {
public:
    explicit SqliteTransaction(SqliteConnection& on) : on_(on) { on_.run("BEGIN IMMEDIATE"); }
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;
    ~SqliteTransaction();
    void commit() {
        on_.run("COMMIT");
        open_ = false;
    }

private:
    SqliteConnection& on_;
    bool open_ = true;
};

} // namespace host
