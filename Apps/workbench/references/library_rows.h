#pragma once
// What the dialogs for references and components list.
#include "Host/model/project.h"
#include <string>
#include <vector>

namespace workbench {

enum class LibraryKind { References, Components };

struct LibraryRow {
    std::string text; ///< the description, or the name
    std::string guid, path;
    vbide::Ref<vbide::Reference> reference; ///< null for a library that the project lacks
    bool isTicked = false;
    bool isFixed = false; ///< a library of the language
    bool isMissing = false;
};

/// Returns the libraries that the project has, in its order, then the registered ones by name.
std::vector<LibraryRow> libraryRows(host::Project& project, LibraryKind kind);

/// Returns the name of a form with controls of this library; "" if no form has any.
std::string userOf(host::Project& project, const LibraryRow& row);

/// Gives the project the libraries that are ticked, references in the order of the rows. Changes only lines of
/// references that differ. Errors as those of References.
void applyRows(host::Project& project, LibraryKind kind, const std::vector<LibraryRow>& rows);

} // namespace workbench
