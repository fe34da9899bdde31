#pragma once
// A project as it was at one moment: its sources, faulty ones too, and what their names mean.
#include "Components/QLToolkit/names/declare_program.h"
#include "Components/QLToolkit/names/procedure_names.h"
#include "Components/QLToolkit/parser/parse.h"
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace qltoolkit {

class Snapshot {
public:
    using Sources = std::vector<std::shared_ptr<const SourceText>>;

    /// Reports all uses of names if `uses` is not null. The libraries of the options outlive this.
    Snapshot(Sources sources, const ConditionalConstants& constants, const ProgramOptions& options,
             UseSink* uses = nullptr);

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

private:
    void parse(const ConditionalConstants& constants, std::vector<ParsedModule>& modules);
    void describe(const std::vector<const language::Library*>& libraries);
    void bind();

    Sources sources_;
    SymbolTable symbols_;
    std::vector<std::unique_ptr<Module>> trees_;
    Program program_;
    ProcedureNames names_;
    std::size_t syntaxErrors_ = 0;
    bool isWhole_ = false;
    std::unordered_map<const Entity*, const language::Member*> members_;
};

} // namespace qltoolkit
