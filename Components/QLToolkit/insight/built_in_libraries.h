#pragma once
// The libraries of the language, which all snapshots share.
#include "Components/Language/library.h"
#include "Components/QLToolkit/names/program.h"
#include <unordered_map>

namespace qltoolkit {

/// The descriptions of the members of libraries.
using DescribedMembers = std::unordered_map<const Entity*, const language::Member*>;

/// Describes the libraries of a program from number `first`.
void addMembers(DescribedMembers& members, const Program& program,
                const std::vector<const language::Library*>& libraries, std::size_t first = 0);

/// Made once, because there are thousands of names. It is not changed afterwards, so threads can use it together.
struct BuiltInLibraries {
    SymbolTable symbols;
    Program program{symbols};
    DescribedMembers members;

    static BuiltInLibraries& shared();

private:
    BuiltInLibraries();
};

} // namespace qltoolkit
