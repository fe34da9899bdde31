#pragma once
// A journal: the text of a source file that was not saved yet, as a file of its own that outlives a crash.
#include "Host/files/text_file.h"
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

struct JournalEntry {
    std::string project;   ///< the project's file, native; "" for a project that was never saved
    std::string component; ///< its name
    int type = 0;          ///< a vbext_ComponentType
    std::string file;      ///< the component's file, native; "" for one that was never saved
    /// The file that the text was made from, as it was read. A new component has none.
    std::optional<FileStamp> base;
    std::int64_t written = 0; ///< when, in seconds since 1970, UTC
    std::string bytes;        ///< the whole source file as a save would have written it
};

/// The bytes of a journal file. All texts come back as they were, whatever characters they hold.
std::string encodeJournal(const JournalEntry& entry);

/// Reads what encodeJournal made. Error 321, which says what is wrong, for anything else: other bytes, a part that is
/// missing, or a single byte that is not as it was written.
JournalEntry decodeJournal(std::string_view bytes);

} // namespace host
