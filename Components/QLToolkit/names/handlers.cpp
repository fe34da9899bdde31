#include "Components/QLToolkit/names/handlers.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/names/lookup.h"
#include <algorithm>
#include <array>

namespace qltoolkit {

namespace {

/// What a module's own events begin with, whatever the module is called.
constexpr std::array<std::string_view, 6> kOwnPrefixes{"Class",       "Form",         "MDIForm",
                                                       "UserControl", "PropertyPage", "UserDocument"};

class Handlers {
public:
    Handlers(Program& program, const SourceModule& module)
        : program_(program), module_(module), scope_(*module.scope) {}

    void report() {
        for (const auto& [entity, decl] : module_.callables)
            if (decl->kind == DeclKind::Procedure) report(as<ProcedureDecl>(*decl).signature);
    }

private:
    void report(const Signature& signature) {
        const auto spelling = program_.symbols.spelling(signature.name);
        for (const auto* interface : scope_.interfaces) member(signature, *interface, spelling);
        const auto underline = spelling.rfind('_');
        if (underline == spelling.npos || underline == 0) return;
        const auto prefix = spelling.substr(0, underline);
        const Symbol event = program_.symbols.intern(spelling.substr(underline + 1));
        if (const Entity* source = eventReceiver(program_, scope_, prefix))
            parts(signature.namePos, prefix, source, eventOf(program_.scope(source->type.id), event));
        else if (isOwnHandler(program_, module_, spelling))
            parts(signature.namePos, prefix, nullptr, scope_.base ? eventOf(*scope_.base, event) : nullptr);
    }

    void member(const Signature& signature, const Scope& interface, std::string_view spelling) {
        const auto prefix = program_.symbols.spelling(interface.name);
        const bool begins = spelling.size() > prefix.size() + 1 && spelling[prefix.size()] == '_' &&
                            basic::startsWithNoCase(spelling, prefix);
        if (!begins) return;
        const Entity* found = interface.names.find(program_.symbols.intern(spelling.substr(prefix.size() + 1)));
        if (found && found->isPublic) parts(signature.namePos, prefix, program_.topNames.find(interface.name), found);
    }

    void parts(Pos pos, std::string_view prefix, const Entity* object, const Entity* member) {
        const auto& source = module_.tree.source;
        const Pos end = extentOfName(source, pos).second;
        // the bytes of the file may be more or fewer than those of the symbol
        Pos split = pos;
        while (split < end &&
               !(source.data()[split] == '_' && basic::equalNoCase(source.decode(source.text(pos, split)), prefix)))
            ++split;
        if (split == end) return;
        if (object) program_.uses->usedPart(module_, pos, split - pos, *object);
        if (member) program_.uses->usedPart(module_, split + 1, end - split - 1, *member);
    }

    Program& program_;
    const SourceModule& module_;
    const Scope& scope_;
};

bool hasEvent(const Program& program, const Scope& scope, std::string_view event) {
    bool isFound = false;
    for (const Scope* at = &scope; at && !isFound; at = at->base)
        at->events.forEach(
            [&](Symbol name, const Entity&) { isFound |= basic::equalNoCase(program.symbols.spelling(name), event); });
    return isFound;
}

} // namespace

const Entity* eventReceiver(Program& program, const Scope& module, std::string_view prefix) {
    const Entity* object = module.names.find(program.symbols.intern(prefix));
    if (!object || object->type.value != ValueType::Object || object->type.id == 0) return nullptr;
    return object->kind == EntityKind::Control || object->withEvents ? object : nullptr;
}

const Entity* eventOf(const Scope& source, Symbol name) {
    for (const Scope* at = &source; at; at = at->base)
        if (const Entity* found = at->events.find(name)) return found;
    return nullptr;
}

bool isOwnHandler(const Program& program, const SourceModule& module, std::string_view name) {
    const auto kind = module.tree.source.kind();
    const auto underline = name.find('_');
    if (kind == FileKind::Module || underline == name.npos) return false;
    if (kind == FileKind::Designer) return true; // its class is not known
    const auto prefix = name.substr(0, underline), event = name.substr(underline + 1);
    const bool isOwn = std::any_of(kOwnPrefixes.begin(), kOwnPrefixes.end(),
                                   [&](std::string_view own) { return basic::equalNoCase(own, prefix); });
    if (!isOwn || kind == FileKind::Class)
        return isOwn && (basic::equalNoCase(event, "Initialize") || basic::equalNoCase(event, "Terminate"));
    const Scope* const base = module.scope->base;
    return !base || hasEvent(program, *base, event);
}

void reportHandlers(Program& program, const SourceModule& module) {
    if (program.uses) Handlers{program, module}.report();
}

} // namespace qltoolkit
