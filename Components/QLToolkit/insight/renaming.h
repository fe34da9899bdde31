#pragma once
// Gives a name of a program a new name without changing what the program means.
#include "Components/QLToolkit/insight/references.h"

namespace qltoolkit {

/// What renaming the name at a place would change.
struct Renaming {
    std::size_t source = 0;
    Pos pos = 0;
    std::string name;
    std::string refusal; ///< why it cannot be renamed, as a sentence; "" if it can
    std::vector<Reference> places;
    /// The same name where its meaning is known only when the program runs, or in code that is not compiled.
    std::vector<Reference> unknown;
};

/// Binds the whole program.
[[nodiscard]] Renaming renamingAt(const ProgramInput& input, std::size_t source, Pos pos,
                                  const Following& following = {});

/// Returns why the new name is not possible, as a sentence, or "" if all names of the program keep their meaning. Binds the
/// program with both names. The answer means nothing if it was stopped.
[[nodiscard]] std::string refusalOf(const ProgramInput& input, const Renaming& renaming, const std::string& newName,
                                    const Following& following = {});

/// Returns the bytes of a source with the new name at these places, of which those in other sources are ignored. Nothing
/// if the code page of the source lacks a character.
[[nodiscard]] std::optional<std::string> renamedBytes(const ProgramInput& input, std::size_t source,
                                                      const std::vector<Reference>& places, const std::string& newName);

} // namespace qltoolkit
