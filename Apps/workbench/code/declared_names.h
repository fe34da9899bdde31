#pragma once
// The names that a module declares, in the letter case of their declarations.
#include <QHash>
#include <QStringList>
#include <vector>

namespace workbench {

/// A name as it was declared, by the name in lower case.
using Spellings = QHash<QString, QString>;

struct DeclaredNames {
    /// The parameters and local names of one procedure. Lines count from 0, the last one included.
    struct Procedure {
        int first = 0, last = 0;
        Spellings names;
    };
    Spellings own;    ///< outside of procedures
    Spellings shared; ///< those of them that other modules can use
    std::vector<Procedure> procedures;
};

/// Reads the lines once. The first of several declarations of a name counts.
DeclaredNames declaredNames(const QStringList& lines);

} // namespace workbench
