#pragma once
// The SQLite database of a registry store: where it is created and how it is opened.
#include "Host/registry/sqlite.h"
#include <filesystem>

namespace host {

struct StoreFile {
    SqliteConnection connection;
    bool immutable = false; ///< opened for reading only, in a folder that is not writable
};

/// Whether a store can be created in `folder`, which may have to be created itself.
bool canMakeStoreIn(const std::filesystem::path& folder);

/// Creates a store and its folder. If another process creates the same store at the same time, one of the two is kept.
void makeStoreFile(const std::filesystem::path& file);

/// Opens an existing store. RegFailure NotRegistryFile for another file or a later version.
StoreFile openStoreFile(const std::filesystem::path& file);

} // namespace host
