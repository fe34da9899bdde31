#pragma once
// Joins the code of all modules.
#include "Components/QLToolkit/code/module_code.h"
#include "Components/QLToolkit/code/program_layout.h"

namespace qltoolkit {

class Linker {
public:
    /// `words`: of the code of all modules.
    Linker(const ProgramLayout& layout, std::size_t words);

    /// Modules are added in their order.
    void add(const SourceModule& module, ModuleCode& code, std::uint32_t prepare);
    [[nodiscard]] image::CodeImage finish();

private:
    std::uint32_t text(std::string_view text);
    void addCode(ModuleCode& code, const std::vector<std::uint32_t>& texts, std::uint32_t module);
    void addProcedures(ModuleCode& code, const std::vector<std::uint32_t>& texts, std::uint32_t module);
    void addClass(const SourceModule& module, const ModuleCode& code, std::uint32_t number, std::uint32_t prepare);
    void addMembers(image::ClassInfo& made, const SourceModule& module);
    void addAssignments(image::ClassInfo& made, const Entity& property);
    [[nodiscard]] std::uint32_t implementationOf(const SourceModule& module, const Scope& interface,
                                                 const Entity& wanted, ProcedureKind kind) const;
    void addImplementations(image::ClassInfo& made, const SourceModule& module);
    void addEvents(image::ClassInfo& made, const SourceModule& module);
    [[nodiscard]] std::uint32_t procedureNamed(const SourceModule& module, std::string_view name) const;
    [[nodiscard]] image::DefaultValue defaultOf(const ConstantValue& value);
    [[nodiscard]] image::MemberParameter parameter(const ParameterInfo& given, SourceModule& module);
    [[nodiscard]] image::ClassMember member(const Entity& entity, const Callable& callable, image::MemberUse use);
    [[nodiscard]] std::string_view spelling(Symbol name) const { return layout_.program().symbols.spelling(name); }

    const ProgramLayout& layout_;
    Constants constants_;
    image::CodeImage image_;
    std::vector<std::uint32_t> prepares_; // the code of the procedures that prepare modules, which follow all others
    std::uint32_t staticSlots_;
    std::unordered_map<std::string, std::uint32_t> texts_;
    std::map<std::vector<std::uint32_t>, std::uint32_t> imports_;
};

} // namespace qltoolkit
