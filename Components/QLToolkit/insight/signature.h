#pragma once
// The call around the cursor, for parameter help.
#include "Components/QLToolkit/insight/probe.h"
#include "Components/QLToolkit/insight/typed_statement.h"
#include <cstdint>

namespace qltoolkit {

/// A call as the editor shows it: `MsgBox(Prompt, [Buttons As VbMsgBoxStyle = vbOKOnly], ...) As VbMsgBoxResult`.
struct CallHelp {
    std::string text;
    std::size_t parameterBegin = 0, parameterEnd = 0; ///< of the present parameter in the text; equal if there is none
    std::string help;                                 ///< one sentence, or ""
    Type parameterType{ValueType::Unknown};
};

/// Returns the innermost call around the cursor, or nothing.
[[nodiscard]] std::optional<CallHelp> callAt(Snapshot& snapshot, const CodePlace& place);
[[nodiscard]] std::optional<CallHelp> callAt(Snapshot& snapshot, const CodePlace& place,
                                             const TypedStatement& statement);

/// What the name that tokens `begin` to `end` call means; null for no name.
[[nodiscard]] const Entity* entityOf(Snapshot& snapshot, const CodePlace& place, const TypedStatement& statement,
                                     std::size_t begin, std::size_t end, bool isCalled);

} // namespace qltoolkit
