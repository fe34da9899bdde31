#include "Components/QLToolkit/insight/probe.h"
#include "Components/QLToolkit/insight/typed_statement.h"
#include "Components/QLToolkit/names/binder.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/names/resolve.h"

namespace qltoolkit {

namespace {

const ProcedureDecl* procedureIn(const Module& tree) {
    for (const auto* decl = tree.declarations; decl; decl = decl->next)
        if (decl->kind == DeclKind::Procedure) return &as<ProcedureDecl>(*decl);
    return nullptr;
}

} // namespace

class Probe::Sink final : public UseSink {
public:
    Sink(Probe& probe, std::size_t from) : probe_(probe), from_(from) {}
    void used(const SourceModule& module, Pos pos, const Entity& entity) override {
        if (&module == probe_.module_.get() && pos >= from_) probe_.uses_.push_back({pos, &entity});
    }
    void member(const MemberBase& base, Symbol) override { probe_.base_ = base; }

private:
    Probe& probe_;
    std::size_t from_;
};

Probe::Probe(Snapshot& snapshot, const CodePlace& place, std::size_t lineBegin, std::string_view line)
    : snapshot_(snapshot) {
    std::string text{lineBegin == 0 ? kAnyProcedure : place.before.substr(0, lineBegin)};
    const auto begin = text.size();
    text.append(line).append("\nEnd Sub\n");
    bind(place.module, std::move(text), begin);
}

Probe::Probe(Snapshot& snapshot, int module, std::string_view procedure) : snapshot_(snapshot) {
    bind(module, std::string(procedure) + "\n", 0);
}

void Probe::bind(int module, std::string text, std::size_t lineBegin) {
    if (text.size() > kMaxSourceBytes || !snapshot_.isWhole()) return;
    auto& program = snapshot_.program();
    const auto& original = program.modules[static_cast<std::size_t>(module)];
    source_ = std::make_unique<SourceText>("typed.bas", std::move(text), basic::CodePage(basic::kUtf8Page));
    auto parsed = parseModule(*source_, program.symbols);
    tree_ = std::move(parsed.module);
    if (!tree_) return;
    module_ = std::make_unique<SourceModule>(*tree_, std::nullopt);
    module_->scope = original.scope;
    module_->comparesText = original.comparesText;
    module_->arrayBase = original.arrayBase;
    module_->defaultTypes = original.defaultTypes;
    const auto* decl = procedureIn(*tree_);
    if (!decl) return;
    isBound_ = true;
    procedure_.kind = EntityKind::Procedure;
    procedure_.name = decl->signature.name;
    procedure_.pos = decl->signature.namePos;
    procedure_.owner = original.scope;
    Sink sink{*this, lineBegin};
    Constants constants{program};
    program.uses = &sink;
    (void)within([&] {
        resolveProcedure(program, *module_, constants, procedure_, *decl);
        Binder{program, *module_, snapshot_.names()}.procedure(*decl, procedure_);
    });
    program.uses = nullptr;
}

/// The procedure that is being typed lives no longer than this; the module's own one has its name.
const Entity* Probe::declared(const Entity* entity) const {
    return entity == &procedure_ ? procedure_.owner->names.find(procedure_.name) : entity;
}

const Entity* Probe::nameAt(std::size_t pos) const {
    for (const auto& use : uses_)
        if (use.pos <= pos && pos <= use.pos + qltoolkit::nameAt(*source_, use.pos).size()) return declared(use.entity);
    return nullptr;
}

} // namespace qltoolkit
