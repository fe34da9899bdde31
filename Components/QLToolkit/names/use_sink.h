#pragma once
// Reports what names mean while a program is resolved and bound, for completion, references and renaming.
#include "Components/QLToolkit/names/entity.h"

namespace qltoolkit {

/// What is before a point or an exclamation mark.
struct MemberBase {
    Type type;
    const Entity* entity = nullptr;
    const Scope* inner = nullptr; ///< of a qualifier; null for the project
    bool isQualifier = false;     ///< a module, library, project or enumeration
};

class UseSink {
public:
    UseSink() = default;
    UseSink(const UseSink&) = delete;
    virtual ~UseSink() = default;

    /// The name at a position means this. Local names are reported where they are declared too.
    virtual void used(const SourceModule& module, Pos pos, const Entity& entity) = 0;
    virtual void member(const MemberBase&, Symbol /*name*/) {}
};

} // namespace qltoolkit
