#pragma once
// The characters of names in the code pages of East Asia (MS-VBAL 3.3.5.1).

namespace qltoolkit {

/// Whether a name may have this character, other than ASCII, in a double-byte code page. `code` is its byte, or its first
/// byte times 256 plus its second one. `isFirst`: the name begins with it.
[[nodiscard]] bool isNameCharacter(int codePage, unsigned code, bool isFirst);

} // namespace qltoolkit
