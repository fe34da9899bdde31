#pragma once
// How a process that compiles uses the system's memory.

namespace apps {

/// Keeps freed memory for the next file instead of returning it to the system, and takes memory in large pages, since
/// returning and taking small ones took a third of the time of a check. Blocks of at least 4 MB remain the system's pages,
/// which cost nothing before they are touched: the stack of a program is one. Called at most once, before threads begin.
void keepFreedMemory();

} // namespace apps
