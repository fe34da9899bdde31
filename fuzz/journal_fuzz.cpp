// Journals: any bytes are either refused with a reason or preserved.
#include "Basic/runtime_error.h"
#include "Host/files/journal_file.h"
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    try {
        const auto entry = host::decodeJournal(bytes);
        const auto again = host::decodeJournal(host::encodeJournal(entry));
        if (again.bytes != entry.bytes || again.file != entry.file || again.project != entry.project) std::abort();
        if (again.records.bytes != entry.records.bytes) std::abort();
    } catch (const basic::RuntimeError& refused) {
        if (refused.Number != 321 || refused.Description.empty()) std::abort();
    }
    // parts before the checksum are parsed in any case
    host::JournalEntry entry;
    entry.project = entry.component = entry.file = entry.bytes = entry.records.file = entry.records.bytes = bytes;
    const auto read = host::decodeJournal(host::encodeJournal(entry));
    if (read.project != bytes || read.component != bytes || read.file != bytes || read.bytes != bytes) std::abort();
    if (read.records.bytes != bytes) std::abort();
    return 0;
}
