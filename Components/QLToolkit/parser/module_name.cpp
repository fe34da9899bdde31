#include "Components/QLToolkit/parser/module_name.h"

namespace qltoolkit {

const StringExpr* moduleNameLiteral(const Module& module, const SymbolTable& symbols) {
    for (const auto* decl = module.declarations; decl; decl = decl->next) {
        if (decl->kind != DeclKind::Attribute) continue;
        const auto& attribute = as<AttributeDecl>(*decl);
        if (!attribute.path.empty() || attribute.values.empty() || symbols.spelling(attribute.name) != "VB_Name")
            continue;
        const Expr* value = attribute.values[0];
        if (value && value->kind == ExprKind::String) return &as<StringExpr>(*value);
    }
    return nullptr;
}

std::string moduleName(const Module& module, const SymbolTable& symbols) {
    const StringExpr* literal = moduleNameLiteral(module, symbols);
    return literal ? stringValue(module.source, *literal) : std::string();
}

} // namespace qltoolkit
