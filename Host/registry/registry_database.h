#pragma once
// A registry database: a file that several processes share.
#include "Host/registry/key_path.h"
#include "Host/registry/reg_value.h"
#include "Host/registry/sqlite.h"
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// Keys with their values. Names are looked up ignoring case and keep their spelling. The file is opened at first use,
/// and reading does not create it: a missing database has no keys but the root. Every failure is a RegFailure.
class RegistryDatabase {
public:
    /// The database in `file`. New files get the access rights of their folder; new folders are private to their owner.
    explicit RegistryDatabase(std::filesystem::path file) : file_(std::move(file)) {}

    bool hasKey(const KeyPath& key);
    /// Sorted by name, ignoring case.
    std::vector<std::string> subkeys(const KeyPath& key);
    /// In the order in which they were first set.
    std::vector<NamedRegValue> values(const KeyPath& key);
    std::optional<RegValue> value(const KeyPath& key, const std::string& name);

    /// False if a write would be refused for lack of permission.
    bool isWritable();
    /// Creates the key and its ancestors. Returns true if it did not exist.
    bool createKey(const KeyPath& key);
    /// Sets a value. Creates the key if needed.
    void setValue(const KeyPath& key, const std::string& name, const RegValue& value);
    /// Returns false if there is no such value.
    bool deleteValue(const KeyPath& key, const std::string& name);
    /// Deletes a key without subkeys and its values. Returns false if there is no such key.
    bool deleteKey(const KeyPath& key);
    /// Runs `writes` in a transaction; a nested call joins the outer one.
    void atomically(const std::function<void()>& writes);

private:
    SqliteConnection* forReading();
    SqliteConnection& forWriting();
    void open();
    std::optional<std::int64_t> idOf(SqliteConnection& db, const KeyPath& key);
    std::int64_t makeKey(SqliteConnection& db, const KeyPath& key);

    std::filesystem::path file_;
    std::optional<SqliteConnection> connection_;
    bool immutable_ = false;
    bool inTransaction_ = false;
};

} // namespace host
