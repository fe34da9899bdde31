#pragma once
// The sizes of records.
#include "Components/QLToolkit/names/program.h"
#include <unordered_map>

namespace qltoolkit {

/// Records are at most this large.
inline constexpr std::uint64_t kLargestRecord = 65535;

struct RecordSize {
    std::uint64_t bytes =
        0;                 ///< arrays with bounds included, without gaps between the fields; at most kLargestRecord + 1
    bool isCircle = false; ///< contains itself; its bytes and those of what contains it are not known
};

/// Whether a record holds only numbers, texts of a fixed length, and records and arrays with bounds of these.
[[nodiscard]] bool isPlain(const Program& program, const Scope& record, int depth = 0);

/// Where a record is in memory: a field begins at a multiple of its size, of 4 at most, and so does the record.
struct MemoryExtent {
    std::uint64_t bytes = 0, alignment = 1;
};

/// Adds a field. `inner`: of the record that the field is, if it is one.
void addField(MemoryExtent& record, const Entity& field, const MemoryExtent& inner);
/// Adds what is between a record and a next one.
void addEnd(MemoryExtent& record);

/// Finds each size once, because records may contain one another in long chains.
class RecordSizes {
public:
    /// In memory a character of a text of a fixed length has two bytes, in files one.
    explicit RecordSizes(const Program& program, std::uint32_t characterBytes = 2)
        : program_(program), characterBytes_(characterBytes) {}
    [[nodiscard]] RecordSize of(const Scope& record);

private:
    struct Known {
        RecordSize size;
        bool isDone = false;
    };
    struct Open {
        std::uint32_t record;
        std::vector<const Entity*> fields; ///< that are not counted yet
    };
    void open(std::uint32_t record);
    void count(const Entity& field);
    void markCircle(std::uint32_t record);

    const Program& program_;
    std::uint32_t characterBytes_;
    std::unordered_map<std::uint32_t, Known> known_; // by Scope::number
    std::vector<Open> open_;                         // the records that are being counted, each inside the one before
};

} // namespace qltoolkit
