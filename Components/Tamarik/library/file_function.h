#pragma once
// What functions for files have in common.
#include "Components/Tamarik/library/code_pages.h"
#include "Components/Tamarik/library/library_function.h"

namespace tamarik {

/// Error 54 unless the file was opened for it.
[[nodiscard]] OpenFile& fileToRead(Session& session, std::int32_t number);
[[nodiscard]] OpenFile& fileToPrint(Session& session, std::int32_t number);

[[nodiscard]] inline std::string encoded(Session& session, std::u16string_view text) {
    return toBytes(text, pageOf(session));
}
[[nodiscard]] inline TextBlock* decoded(Session& session, std::string_view bytes) {
    return made(session, fromBytes(bytes, pageOf(session)));
}

} // namespace tamarik
