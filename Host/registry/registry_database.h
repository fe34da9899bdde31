#pragma once
// One registry database: a file that several processes share, or keys that live in memory only.
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

struct NamedRegValue {
    std::string name; ///< as spelled when the value was first set
    RegValue value;
};

/// Keys with their values. Names are found without regard to letter case and keep their spelling. Nothing is opened
/// before it is needed, and reading makes no file: a database that does not exist reads as one without keys. The root
/// key is always there. Every failure is a RegFailure.
class RegistryDatabase {
public:
    /// Keys in memory.
    RegistryDatabase() = default;
    /// The database in `file`. What is made for it gets the access rights of its folder; a folder that has to be
    /// made is for its owner only.
    explicit RegistryDatabase(std::filesystem::path file) : file_(std::move(file)) {}

    bool hasKey(const KeyPath& key);
    /// In the order of their names, letter case ignored.
    std::vector<std::string> subkeys(const KeyPath& key);
    /// In the order in which they were first set.
    std::vector<NamedRegValue> values(const KeyPath& key);
    std::optional<RegValue> value(const KeyPath& key, const std::string& name);

    /// False when a write would be refused for want of permission.
    bool isWritable();
    /// Makes the key and those above it. True when it was not there.
    bool createKey(const KeyPath& key);
    /// Sets a value of a key, which is made if need be.
    void setValue(const KeyPath& key, const std::string& name, const RegValue& value);
    /// False when there is no such value.
    bool deleteValue(const KeyPath& key, const std::string& name);
    /// Deletes a key with its values. It must have no subkeys. False when there is no such key.
    bool deleteKey(const KeyPath& key);
    /// Runs writes so that all of them happen or none.
    void atomically(const std::function<void()>& writes);

private:
    SqliteConnection* forReading();
    SqliteConnection& forWriting();
    void makeFile() const;
    void openFile();
    std::optional<std::int64_t> idOf(SqliteConnection& db, const KeyPath& key);
    std::int64_t makeKey(SqliteConnection& db, const KeyPath& key);

    std::optional<std::filesystem::path> file_;
    std::optional<SqliteConnection> connection_;
    bool immutable_ = false;
    bool inTransaction_ = false;
};

} // namespace host
