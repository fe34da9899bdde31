#include "Apps/workbench/events/interface_members.h"
#include "Apps/workbench/events/declaration_text.h"
#include "Basic/case_folding.h"
#include "Basic/vb_words.h"
#include "Host/model/code/statement_reader.h"
#include "Host/model/module_code.h"
#include <algorithm>

namespace workbench {

namespace {

constexpr int kPublic = 2;
constexpr const char *kGet = "Property Get", *kLet = "Property Let", *kSet = "Property Set";

using Members = std::vector<host::ClassEvent>;

const char* procedureWords(vbide::vbext_ProcKind kind, const DeclaredHead& head) {
    switch (kind) {
    case vbide::vbext_pk_Get: return kGet;
    case vbide::vbext_pk_Let: return kLet;
    case vbide::vbext_pk_Set: return kSet;
    default: return basic::equalNoCase(head.keyword, "Function") ? "Function" : "Sub";
    }
}

bool isTypeOfLanguage(const std::string& type) {
    const auto words = basic::vbWords();
    return std::any_of(words.begin(), words.end(), [&](const auto& word) {
        return word.kind == basic::VbWordKind::Type && basic::equalNoCase(word.text, type);
    });
}

/// Whether the declarations of a module have an Enum or Type of this name.
bool declaresType(vbide::CodeModule& module, const std::string& type) {
    for (int line = 1; line <= module.CountOfDeclarationLines(); ++line) {
        const auto text = module.Lines(line, 1);
        std::string_view rest = text;
        auto word = host::takeWord(rest);
        if (basic::equalNoCase(word, "Public") || basic::equalNoCase(word, "Private")) word = host::takeWord(rest);
        const bool declares = basic::equalNoCase(word, "Enum") || basic::equalNoCase(word, "Type");
        if (declares && basic::equalNoCase(host::takeWord(rest), type)) return true;
    }
    return false;
}

/// Whether values of a type are assigned without Set.
bool isValueType(vbide::VBComponent& component, const std::string& type) {
    if (isTypeOfLanguage(type)) return true;
    const auto all = component.Collection()->items();
    return std::any_of(all.begin(), all.end(),
                       [&](const auto& other) { return declaresType(*other->CodeModule(), type); });
}

/// A public variable has the procedures of a property; one that is a Variant has all three.
void addVariable(Members& members, vbide::VBComponent& component, const std::string& name, const std::string& result) {
    const auto type = result.empty() ? "Variant" : result.substr(result.rfind(' ') + 1);
    const auto assigned = "ByVal RHS As " + type;
    const bool isVariant = basic::equalNoCase(type, "Variant"), isValue = isValueType(component, type);
    members.push_back({name, "", kGet, " As " + type});
    if (isValue) members.push_back({name, assigned, kLet});
    if (!isValue || isVariant) members.push_back({name, assigned, kSet});
}

} // namespace

std::vector<host::ClassEvent> interfaceMembers(vbide::VBComponent& implemented) {
    const auto module = implemented.CodeModule();
    const auto outline = basic::cast<host::ModuleCode>(module)->outline();
    Members members;
    for (const auto& member : outline.members) {
        if (member.Scope != kPublic) continue;
        if (member.type == vbide::Member::Variable)
            addVariable(members, implemented, member.Name,
                        headOf(statementAt(*module, member.CodeLocation), member.Name).result);
        for (const auto& procedure : outline.procedures) {
            if (!basic::equalNoCase(procedure.name, member.Name)) continue;
            const auto head = headOf(statementAt(*module, procedure.body), procedure.name);
            members.push_back({procedure.name, head.parameters, procedureWords(procedure.kind, head), head.result});
        }
    }
    return members;
}

} // namespace workbench
