#pragma once
// Names, types and signatures as the editor shows them.
#include "Components/QLToolkit/insight/snapshot.h"

namespace qltoolkit {

/// Returns a name as its declaration spells it. `local` is the source of local names.
[[nodiscard]] std::string spellingOf(const Snapshot& snapshot, const Entity& entity, const SourceText* local = nullptr);

/// Returns a type as it is written after As, without the parentheses of an array.
[[nodiscard]] std::string typeText(const Snapshot& snapshot, const Type& type);

/// How a name can be called: by its function, its property, or the default member of its object. Null for others.
struct CalledMember {
    const Entity* entity = nullptr;
    const Callable* callable = nullptr;
};
[[nodiscard]] CalledMember calledMember(const Snapshot& snapshot, const Entity& entity);

/// Returns each parameter of a call as `[Buttons As VbMsgBoxStyle = vbOKOnly]`.
[[nodiscard]] std::vector<std::string> parameterTexts(const Snapshot& snapshot, const CalledMember& called);

/// Returns how a name is declared: `Dim x As Long`, `Function f(a As Long) As String`.
[[nodiscard]] std::string describe(const Snapshot& snapshot, const Entity& entity, const SourceText* local = nullptr);

} // namespace qltoolkit
