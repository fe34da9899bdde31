#pragma once
// Checks the names and types of a whole project.
#include "Components/Language/library.h"
#include "Components/QLToolkit/names/program.h"
#include <functional>

namespace qltoolkit {

/// A module that was parsed without errors.
struct ParsedModule {
    const Module* tree;
    std::optional<image::Control> form; ///< see readFormHeader
};

struct ProgramOptions {
    std::string projectName;
    /// In the order in which names are looked up. The libraries of the language and of forms need not be among them.
    std::vector<const language::Library*> libraries;
    /// Something that the project names is missing or damaged: names that are not found may be declared there.
    bool isIncomplete = false;
    /// Source files are missing or have syntax errors, which are reported: the same, without a warning for each name.
    bool lacksFiles = false;
    bool warnsOptionally = false; ///< of what is allowed but seldom meant
    bool warnsOfDevices = false;  ///< of what is not on devices
    bool warnsOfDeclares = false; ///< of each Declare that is not on devices, not only of its calls
    unsigned threads = 1;
};

class CodeSink;

/// The messages for each module in the order of the modules, sorted by position. They are the same for any number of
/// threads.
using ProgramMessages = std::vector<std::vector<Diagnostic>>;

[[nodiscard]] ProgramMessages checkProgram(const std::vector<ParsedModule>& modules, SymbolTable& symbols,
                                           const ProgramOptions& options);
/// The same; `done` is called while everything that names mean still exists.
void checkProgram(const std::vector<ParsedModule>& modules, SymbolTable& symbols, const ProgramOptions& options,
                  const std::function<void(ProgramMessages)>& done, CodeSink* code);

} // namespace qltoolkit
