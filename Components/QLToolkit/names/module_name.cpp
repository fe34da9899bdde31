#include "Components/QLToolkit/names/module_name.h"

namespace qltoolkit {

std::string moduleName(const Module& module, const SymbolTable& symbols) {
    for (const auto* decl = module.declarations; decl; decl = decl->next) {
        if (decl->kind != DeclKind::Attribute) continue;
        const auto& attribute = as<AttributeDecl>(*decl);
        if (!attribute.path.empty() || attribute.values.empty() || symbols.spelling(attribute.name) != "VB_Name")
            continue;
        const Expr* value = attribute.values[0];
        if (value && value->kind == ExprKind::String) return stringValue(module.source, as<StringExpr>(*value));
    }
    return {};
}

} // namespace qltoolkit
