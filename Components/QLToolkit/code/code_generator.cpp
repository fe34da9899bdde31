#include "Components/QLToolkit/code/code_generator.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/code/emitter.h"
#include "Components/QLToolkit/code/linker.h"

namespace qltoolkit {

class ModuleGenerator : public ModuleCodeSink {
public:
    ModuleGenerator(const ProgramLayout& layout, SourceModule& module)
        : module_(module), emitter_(layout, module, code_) {}

    void procedure(const ProcedureDecl& decl, const Entity& entity, const ProcedureNames& names,
                   const Notes& notes) override {
        emitter_.procedure(decl, entity, names, notes);
    }
    void prepare(std::uint32_t number) {
        emitter_.prepare(number);
        emitter_.fieldAccesses();
    }
    [[nodiscard]] std::size_t words() const { return code_.code.size(); }
    /// The memory of the code is free for that of the whole when the caller has linked it.
    ModuleCode take() { return std::move(code_); }
    [[nodiscard]] SourceModule& module() const { return module_; }

private:
    SourceModule& module_;
    ModuleCode code_;
    Emitter emitter_;
};

namespace {

/// The Subs without parameters in standard modules, also private ones.
template <class Found>
void forEachEntry(const Program& program, const Found& found) {
    for (const auto& module : program.modules) {
        if (module.scope->isClass()) continue;
        for (const auto& [entity, decl] : module.callables)
            if (decl->kind == DeclKind::Procedure && entity->get && entity->get->body == decl &&
                entity->get->parameters.empty() && entity->type.value == ValueType::None)
                found(*module.scope, *entity);
    }
}

std::uint32_t startOf(const Program& program, std::string_view name) {
    std::uint32_t start = image::kNone;
    forEachEntry(program, [&](const Scope&, const Entity& entity) {
        if (start == image::kNone && basic::equalNoCase(program.symbols.spelling(entity.name), name))
            start = entity.get->number;
    });
    return start;
}

} // namespace

struct CodeGenerator::Work {
    explicit Work(Program& program) : layout(program) {
        for (auto& module : program.modules) modules.emplace_back(layout, module);
    }
    ProgramLayout layout;
    std::deque<ModuleGenerator> modules;
};

CodeGenerator::CodeGenerator() = default;
CodeGenerator::~CodeGenerator() = default;

void CodeGenerator::declared(Program& program) { work_ = std::make_unique<Work>(program); }

ModuleCodeSink& CodeGenerator::module(std::size_t index) { return work_->modules[index]; }

std::vector<EntryPoint> CodeGenerator::entryPoints() const {
    const auto& program = work_->layout.program();
    std::vector<EntryPoint> entries;
    forEachEntry(program, [&](const Scope& module, const Entity& entity) {
        if (!entity.isPublic) return;
        entries.push_back({std::string(program.symbols.spelling(module.name)),
                           std::string(program.symbols.spelling(entity.name)), entity.get->number});
    });
    return entries;
}

image::CodeImage CodeGenerator::link(const ImageParts& parts) {
    std::size_t index = 0, words = 0;
    for (auto& module : work_->modules) {
        module.prepare(work_->layout.prepareOf(index++));
        words += module.words();
    }
    Linker linker{work_->layout, words};
    index = 0;
    for (auto& module : work_->modules) {
        auto code = module.take();
        linker.add(module.module(), code, work_->layout.prepareOf(index++));
    }
    auto result = linker.finish();
    result.start = startOf(work_->layout.program(), parts.start);
    result.codePage = parts.codePage;
    result.resources = parts.resources;
    return result;
}

} // namespace qltoolkit
