#pragma once
// A project as it was at one moment: its sources, faulty ones too, and what their names mean.
#include "Components/QLToolkit/insight/built_in_libraries.h"
#include "Components/QLToolkit/names/declare_program.h"
#include "Components/QLToolkit/names/procedure_names.h"
#include "Components/QLToolkit/parser/parse.h"
#include <functional>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace qltoolkit {

using SourceTexts = std::vector<std::shared_ptr<const SourceText>>;

/// What a snapshot is made of. The libraries of the options outlive it.
struct ProgramInput {
    SourceTexts sources;
    ConditionalConstants constants;
    ProgramOptions options;
};

/// How a thread that reads a whole program is followed and stopped.
struct Following {
    std::stop_token stop;
    /// Called with how much of how much was read.
    std::function<void(std::size_t done, std::size_t all)> progress = [](std::size_t, std::size_t) {};
};

class Snapshot {
public:
    using Sources = SourceTexts;

    Snapshot(SourceTexts sources, const ConditionalConstants& constants, const ProgramOptions& options);
    /// Binds all code and checks the declarations, and reports what each name means.
    Snapshot(const ProgramInput& input, UseSink& uses, const Following& following = {});

    /// The place of a module among the sources, by the name of its file; -1 if it is absent or could not be read.
    [[nodiscard]] int moduleOf(std::string_view file) const;
    [[nodiscard]] int moduleOf(const SourceModule& module) const;

    /// Whether the types of all declarations are known, so that code can be bound.
    [[nodiscard]] bool isWhole() const { return isWhole_; }

    /// Whether this is the place of a module.
    [[nodiscard]] bool has(int module) const {
        return module >= 0 && static_cast<std::size_t>(module) < program_.modules.size();
    }
    [[nodiscard]] Program& program() { return program_; }
    [[nodiscard]] const Program& program() const { return program_; }
    [[nodiscard]] ProcedureNames& names() { return names_; }
    /// The description of a library's member; null for other names.
    [[nodiscard]] const language::Member* describedMember(const Entity& entity) const;
    /// The number of errors in all modules.
    [[nodiscard]] std::size_t errors() const;
    [[nodiscard]] std::size_t syntaxErrors() const { return syntaxErrors_; }
    /// Whether all code was bound.
    [[nodiscard]] bool isBound() const { return isBound_; }

private:
    Snapshot(SourceTexts sources, const std::vector<const language::Library*>& libraries);
    void parse(const ConditionalConstants& constants, std::vector<ParsedModule>& modules, const Following& following);
    void bind(const Following& following);

    SourceTexts sources_;
    SymbolTable symbols_{&BuiltInLibraries::shared().symbols};
    std::vector<std::unique_ptr<Module>> trees_;
    Program program_{symbols_, BuiltInLibraries::shared().program};
    ProcedureNames names_;
    std::size_t syntaxErrors_ = 0;
    bool isWhole_ = false, isBound_ = false;
    DescribedMembers members_; ///< of the libraries of the options
};

} // namespace qltoolkit
