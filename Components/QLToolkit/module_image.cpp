#include "Components/QLToolkit/module_image.h"
#include "Components/QLToolkit/parser/module_name.h"
#include "Components/QLToolkit/parser/tree_walk.h"
#include <unordered_set>

namespace qltoolkit {

namespace {

image::ModuleKind imageKindOf(FileKind kind) {
    switch (kind) {
    case FileKind::Module: return image::ModuleKind::Module;
    case FileKind::Class: return image::ModuleKind::Class;
    default: return image::ModuleKind::Form;
    }
}

image::MemberKind imageKindOf(ProcedureKind kind) {
    switch (kind) {
    case ProcedureKind::Sub: return image::MemberKind::Sub;
    case ProcedureKind::Function: return image::MemberKind::Function;
    case ProcedureKind::PropertyGet: return image::MemberKind::PropertyGet;
    case ProcedureKind::PropertyLet: return image::MemberKind::PropertyLet;
    case ProcedureKind::PropertySet: break;
    }
    return image::MemberKind::PropertySet;
}

/// Returns the part after the last separator of either kind.
std::string fileTitle(const std::string& path) {
    const auto slash = path.find_last_of("/\\");
    return slash == path.npos ? path : path.substr(slash + 1);
}

class MemberList {
public:
    MemberList(const Module& module, const SymbolTable& symbols) : module_(module), symbols_(symbols) {}

    std::vector<image::Member> take() {
        for (const auto* decl = module_.declarations; decl; decl = decl->next) add(*decl);
        return std::move(members_);
    }

private:
    void add(const Decl& decl) {
        switch (decl.kind) {
        case DeclKind::Procedure: {
            const auto& signature = as<ProcedureDecl>(decl).signature;
            add(decl, imageKindOf(signature.kind), signature.name, signature.parameters.size());
            break;
        }
        case DeclKind::Declare: {
            const auto& signature = as<DeclareDecl>(decl).signature;
            add(decl, image::MemberKind::Declare, signature.name, signature.parameters.size());
            break;
        }
        case DeclKind::Event:
            add(decl, image::MemberKind::Event, as<EventDecl>(decl).name, as<EventDecl>(decl).parameters.size());
            break;
        default: break;
        }
    }

    void add(const Decl& decl, image::MemberKind kind, Symbol name, std::uint32_t parameters) {
        members_.push_back({kind, decl.visibility != Visibility::Private, std::string(symbols_.spelling(name)),
                            module_.source.lineOf(decl.pos), parameters});
    }

    const Module& module_;
    const SymbolTable& symbols_;
    std::vector<image::Member> members_;
};

struct StringLiterals {
    std::vector<const Expr*> literals;

    void symbol(const Symbol&) {}
    void expression(const Expr& expr) {
        if (expr.kind == ExprKind::String) literals.push_back(&expr);
    }
};

std::vector<std::string> stringsOf(const Module& module) {
    StringLiterals found;
    TreeWalk{found}.module(module);
    auto& literals = found.literals;
    std::sort(literals.begin(), literals.end(), [](const Expr* a, const Expr* b) { return a->pos < b->pos; });
    std::vector<std::string> texts;
    std::unordered_set<std::string> seen;
    for (const auto* literal : literals) {
        auto text = stringValue(module.source, as<StringExpr>(*literal));
        if (seen.insert(text).second) texts.push_back(std::move(text));
    }
    return texts;
}

} // namespace

image::Module imageOf(const Module& module, const SymbolTable& symbols) {
    image::Module image;
    image.kind = imageKindOf(module.source.kind());
    image.name = moduleName(module, symbols);
    image.file = fileTitle(module.source.name());
    image.lines = module.source.lineCount();
    image.members = MemberList{module, symbols}.take();
    auto texts = stringsOf(module);
    image.strings.assign(std::make_move_iterator(texts.begin()), std::make_move_iterator(texts.end()));
    return image;
}

} // namespace qltoolkit
