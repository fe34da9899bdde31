#pragma once
// Runs of slots with managed fields: records, and the variables of frames, modules and objects.
#include "Components/Tamarik/values/array_block.h"
#include <span>

namespace tamarik {

/// Releases what one slot, or pair of slots, holds, without changing it.
void releaseSlot(Heap& heap, const Slot* slot, Managed kind);
/// Releases the managed slots in order and makes them zero.
void clearManaged(Heap& heap, Slot* slots, std::span<const ManagedSlot> managed);
/// Makes a record as a new one is, with arrays and texts of a fixed size.
void prepareRecord(Heap& heap, Slot* record, const RecordShape& shape);
/// Copies a record over another one; they may be the same.
void copyRecord(Heap& heap, Slot* target, const Slot* source, const RecordShape& shape);

void lock(Counted* owner);
void unlock(Counted* owner);

} // namespace tamarik
