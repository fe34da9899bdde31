#pragma once
// The code page of an application, for its bytes and files.
#include "Components/Tamarik/natives/session.h"
#include "Components/Tamarik/text/codes.h"

namespace tamarik {

[[nodiscard]] inline basic::CodePage pageOf(const Session& session) {
    return basic::CodePage(static_cast<int>(session.codePage));
}

} // namespace tamarik
