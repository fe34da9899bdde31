#pragma once
// The part of SQLite that the registry store needs. Every failure is a RegFailure.
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

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

    /// A database in memory.
    SqliteConnection();

    /// Runs statements without parameters and results.
    void run(const char* sql);
    bool readOnly() const;
    sqlite3* handle() const { return db_.get(); }

private:
    struct Close {
        void operator()(sqlite3* db) const;
    };
    std::unique_ptr<sqlite3, Close> db_;
};

/// One statement with its parameters in order.
class SqliteStatement {
public:
    template <class... P>
    SqliteStatement(SqliteConnection& on, std::string_view sql, const P&... parameters) {
        prepare(on, sql);
        (bind(parameters), ...);
    }
    /// True while there is a row.
    bool step();
    std::int64_t integer(int column) const;
    std::string bytes(int column) const;

private:
    void prepare(SqliteConnection& on, std::string_view sql);
    void bind(std::int64_t number);
    void bind(const std::string& text);
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
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
