#include "Host/files/journal_file.h"
#include "Host/files/system_error.h"
#include <charconv>
#include <cstdint>
#include <fmt/format.h>

namespace host {
namespace {

constexpr int kInvalidJournal = 321;
constexpr std::string_view kFirstLine = "Fernwick journal 1\n", kFirstLineWithRecords = "Fernwick journal 2\n";

/// 64-bit FNV-1a; std::hash may differ between builds, and journals outlive the build that wrote them.
std::uint64_t checkSumOf(std::string_view bytes) noexcept {
    std::uint64_t sum = 0xcbf29ce484222325U;
    for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    return sum;
}

/// The text on one line.
std::string escaped(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (c == '\\')
            line += "\\\\";
        else if (c == '\n')
            line += "\\n";
        else
            line += c;
    }
    return line;
}

std::string unescaped(std::string_view line) {
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool pair = line[i] == '\\' && i + 1 < line.size();
        text += !pair ? line[i] : line[++i] == 'n' ? '\n' : line[i];
    }
    return text;
}

std::string formatStamp(const std::optional<FileStamp>& stamp) {
    if (!stamp) return "none";
    return fmt::format("{} {} {} {} {} {}", stamp->device, stamp->inode, stamp->size, stamp->modifiedSeconds,
                       stamp->modifiedNanoseconds, stamp->digest);
}

[[noreturn]] void refuse(std::string_view why) { throw hostError(kInvalidJournal, fmt::format("the file {}", why)); }

/// Reads the parts of a journal in order.
class JournalReader {
public:
    explicit JournalReader(std::string_view bytes)
        : rest_(bytes), hasRecords_(bytes.starts_with(kFirstLineWithRecords)) {
        if (!hasRecords_ && !rest_.starts_with(kFirstLine)) refuse("is not a journal of this version");
        rest_.remove_prefix(kFirstLine.size());
    }

    bool hasRecords() const { return hasRecords_; }

    std::string_view line(std::string_view key) {
        const auto end = rest_.find('\n');
        if (end == std::string_view::npos || !rest_.starts_with(key)) refuse(fmt::format("lacks its line {}", key));
        const auto value = rest_.substr(key.size(), end - key.size());
        rest_.remove_prefix(end + 1);
        return value;
    }
    std::string text(std::string_view key) { return unescaped(line(key)); }
    template <class Number>
    Number number(std::string_view key, int base = 10) {
        auto value = line(key);
        const auto result = takeNumber<Number>(value, base);
        if (!value.empty()) refuse(fmt::format("has a line {} that is not a number", key));
        return result;
    }
    std::optional<FileStamp> stamp(std::string_view key) {
        auto value = line(key);
        if (value == "none") return {};
        FileStamp stamp;
        stamp.device = takeNumber<std::uint64_t>(value);
        stamp.inode = takeNumber<std::uint64_t>(value);
        stamp.size = takeNumber<std::uint64_t>(value);
        stamp.modifiedSeconds = takeNumber<std::int64_t>(value);
        stamp.modifiedNanoseconds = takeNumber<std::int64_t>(value);
        stamp.digest = takeNumber<std::uint64_t>(value);
        return stamp;
    }
    std::string_view rest() const { return rest_; }

private:
    template <class Number>
    static Number takeNumber(std::string_view& from, int base = 10) {
        Number number = 0;
        const auto [end, failed] = std::from_chars(from.data(), from.data() + from.size(), number, base);
        if (failed != std::errc()) refuse("has a malformed number");
        from.remove_prefix(std::size_t(end - from.data()));
        if (!from.empty() && from.front() == ' ') from.remove_prefix(1);
        return number;
    }

    std::string_view rest_;
    bool hasRecords_;
};

/// What follows the line with the size of the text.
std::string recordLines(const UnsavedRecords& records) {
    return fmt::format("Records={}\nFrom={}\nResources={}\nResourcesBase={}\n", records.bytes.size(), records.from,
                       escaped(records.file), formatStamp(records.base));
}

/// Returns the size of the records, which are after the text.
std::uint64_t readRecordLines(JournalReader& reader, UnsavedRecords& records) {
    if (!reader.hasRecords()) return 0;
    const auto size = reader.number<std::uint64_t>("Records=");
    records.from = reader.number<std::size_t>("From=");
    records.file = reader.text("Resources=");
    records.base = reader.stamp("ResourcesBase=");
    return size;
}

} // namespace

std::string encodeJournal(const JournalEntry& entry) {
    const bool hasRecords = !entry.records.bytes.empty();
    const auto checked = fmt::format("Project={}\nComponent={}\nType={}\nFile={}\nBase={}\nWritten={}\nSize={}\n{}\n",
                                     escaped(entry.project), escaped(entry.component), entry.type, escaped(entry.file),
                                     formatStamp(entry.base), entry.written, entry.bytes.size(),
                                     hasRecords ? recordLines(entry.records) : "") +
                         entry.bytes + entry.records.bytes;
    return fmt::format("{}Sum={:x}\n", hasRecords ? kFirstLineWithRecords : kFirstLine, checkSumOf(checked)) + checked;
}

JournalEntry decodeJournal(std::string_view bytes) {
    JournalReader reader(bytes);
    const auto sum = reader.number<std::uint64_t>("Sum=", 16);
    const bool asWritten = checkSumOf(reader.rest()) == sum;
    JournalEntry entry;
    entry.project = reader.text("Project=");
    entry.component = reader.text("Component=");
    entry.type = reader.number<int>("Type=");
    entry.file = reader.text("File=");
    entry.base = reader.stamp("Base=");
    entry.written = reader.number<std::int64_t>("Written=");
    const auto size = reader.number<std::uint64_t>("Size=");
    const auto records = readRecordLines(reader, entry.records);
    reader.line("");
    const auto present = reader.rest().size();
    if (present < size || present - size < records)
        refuse(fmt::format("ends after {} of {} bytes", present, size > UINT64_MAX - records ? size : size + records));
    if (!asWritten || present - size > records) refuse("is damaged: its checksum does not match");
    entry.bytes = reader.rest().substr(0, size);
    entry.records.bytes = reader.rest().substr(size);
    return entry;
}

} // namespace host
