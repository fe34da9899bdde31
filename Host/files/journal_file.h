#pragma once
// A journal: a file with the unsaved text of a source or project file, for recovery after a crash.
#include "Host/files/resource_file.h"
#include "Host/files/text_file.h"
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace host {

struct JournalEntry {
    std::string project;   ///< the native path of the project's file; its name, or "", if it was never saved
    std::string component; ///< its name; "" for the text of the project's own file
    int type = 0;          ///< a vbext_ComponentType; 0 for the project's own file
    std::string file;      ///< the native path of the file that the text belongs to; "" if it was never saved
    /// The file that the text was based on, as it was read. A new component has none.
    std::optional<FileStamp> base;
    std::int64_t written = 0; ///< when, in seconds since 1970, UTC
    std::string bytes;        ///< the whole source file as a save would write it
    UnsavedRecords records;   ///< to which the text refers
};

/// Returns the bytes of a journal file. Any text can be encoded and is restored exactly.
std::string encodeJournal(const JournalEntry& entry);

/// Reads the output of encodeJournal. Error 321 with the reason for anything else: other files, missing parts, and any
/// changed byte.
JournalEntry decodeJournal(std::string_view bytes);

} // namespace host
