#pragma once
// Opens files as TextStreams.
#include "Components/Tamarik/natives/session.h"
#include "Components/Tamarik/scripting/text_stream.h"
#include <string>

namespace tamarik {

/// `mode` is ForReading, ForWriting or ForAppending, `format` a Tristate; both may be Missing. `creates` makes a missing file.
/// Errors 5, 53, 70, 76.
[[nodiscard]] TextStream* openText(Session& session, const std::string& path, const Variant& mode, bool creates,
                                   const Variant& format);

/// Makes an empty file. Error 58 if there is one and it must not be replaced, 70, 76.
[[nodiscard]] TextStream* createText(Session& session, const std::string& path, bool replaces, bool isUnicode);

} // namespace tamarik
