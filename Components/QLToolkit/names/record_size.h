#pragma once
// The size of records.
#include "Components/QLToolkit/names/program.h"

namespace qltoolkit {

/// Records are at most this large.
inline constexpr std::uint64_t kLargestRecord = 65535;

/// Returns the bytes of a record, its arrays with bounds included, as it lies in memory without gaps between the fields.
/// A record that contains itself, and any size above kLargestRecord, is kLargestRecord + 1.
[[nodiscard]] std::uint64_t sizeOfRecord(const Program& program, const Scope& record);

} // namespace qltoolkit
