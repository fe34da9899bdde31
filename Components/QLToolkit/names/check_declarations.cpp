// What concerns whole declarations: interfaces, handlers of events, properties, records, public members of classes.
#include "Components/QLToolkit/names/handlers.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/names/record_size.h"
#include "Components/QLToolkit/names/resolve.h"
#include "Components/QLToolkit/types/constant_value.h"

namespace qltoolkit {

namespace {

bool sameType(const Type& a, const Type& b) {
    if (a.value == ValueType::Unknown || b.value == ValueType::Unknown) return true;
    return a.value == b.value && a.isArray == b.isArray && (a.value != ValueType::Record || a.id == b.id);
}

bool sameParameters(const Span<ParameterInfo>& a, const Span<ParameterInfo>& b) {
    if (a.size() != b.size()) return false;
    for (std::uint32_t i = 0; i < a.size(); ++i)
        if (!sameType(a[i].type, b[i].type)) return false;
    return true;
}

/// Whether a procedure can be called as another one is. `value`: they assign a value, which is passed after the parameters.
bool isCalledAlike(const Callable& own, const Callable& wanted, bool value) {
    const auto isSame = [](const Type& a, const Type& b) {
        return sameType(a, b) && (a.value != ValueType::Object || b.value != ValueType::Object || a.id == b.id);
    };
    if (!isSame(own.result, wanted.result) || own.parameters.size() != wanted.parameters.size()) return false;
    for (std::uint32_t i = 0; i < own.parameters.size(); ++i)
        if (!isSame(own.parameters[i].type, wanted.parameters[i].type) ||
            own.parameters[i].byVal != wanted.parameters[i].byVal)
            return false;
    return !value || takesValueByVal(own) == takesValueByVal(wanted);
}

struct Callables {
    const Callable *get, *let, *set;
};

/// The procedures of a member; `ofVariable` where it is a variable.
Callables callablesOf(const Entity& member, const Callable& ofVariable) {
    if (member.kind != EntityKind::Variable) return {member.get, member.let, member.set};
    const bool isObject = member.type.value == ValueType::Object;
    return {&ofVariable, isObject ? nullptr : &ofVariable, mayBeSet(member.type.value) ? &ofVariable : nullptr};
}

bool isFriend(const Entity& member) {
    const Callable* callable = member.get ? member.get : member.let ? member.let : member.set;
    return callable && isFriend(*callable);
}

class DeclarationChecks {
public:
    DeclarationChecks(Program& program, SourceModule& module, RecordSizes& sizes)
        : program_(program), module_(module), scope_(*module.scope), sizes_(sizes) {}

    void check() {
        for (const auto& [entity, decl] : module_.records) {
            const auto size = sizes_.of(*entity->inner);
            if (size.isCircle)
                module_.diagnostics.report(Message::CircularReference, decl->pos,
                                           program_.symbols.spelling(entity->name));
            else if (size.bytes > kLargestRecord)
                module_.diagnostics.report(Message::StaticDataTooLarge, decl->pos);
        }
        for (const auto& [entity, decl] : module_.variables)
            if (entity->withEvents) eventSource(*entity, *decl);
        scope_.names.forEach([&](Symbol, Entity& entity) {
            if (entity.kind == EntityKind::Property && entity.owner == &scope_) property(entity);
        });
        for (const auto* interface : scope_.interfaces) implementation(*interface);
        for (const auto& [entity, decl] : module_.callables)
            if (entity->kind == EntityKind::Procedure && decl->kind == DeclKind::Procedure) handler(*entity);
        if (!scope_.isClass()) return;
        publicMembers();
        privateTypes();
    }

private:
    void eventSource(const Entity& entity, const Variable& decl) {
        if (entity.type.value == ValueType::Unknown) return;
        const bool hasEvents = entity.type.value == ValueType::Object && entity.type.id != 0 &&
                               (program_.scope(entity.type.id).events.size() > 0 ||
                                program_.scope(entity.type.id).open || program_.scope(entity.type.id).base);
        if (!hasEvents) module_.diagnostics.report(Message::NoEvents, decl.type ? decl.type->pos : decl.pos);
    }

    void property(const Entity& entity) {
        const auto differs = [&](const Callable* assigning) {
            if (!entity.get || !assigning) return false;
            return !sameParameters(entity.get->parameters, assigning->parameters);
        };
        const bool letDiffers =
            differs(entity.let) || (entity.get && entity.let && !sameType(entity.get->result, entity.let->result));
        const bool setDiffers = differs(entity.set);
        if (!letDiffers && !setDiffers) return;
        const Callable& part = letDiffers ? *entity.let : *entity.set;
        if (part.body)
            module_.diagnostics.report(Message::PropertyInconsistent, part.body->signature.namePos,
                                       nameAt(module_.tree.source, part.body->signature.namePos));
    }

    Entity* ownMember(std::string_view prefix, Symbol name) {
        std::string joined{prefix};
        joined += '_';
        joined += program_.symbols.spelling(name);
        return scope_.names.find(program_.symbols.intern(joined));
    }

    // Every public member of an interface needs a procedure here, a variable one for reading and one for writing.
    void implementation(const Scope& interface) {
        if (!interface.source) return;
        const auto prefix = program_.symbols.spelling(interface.name);
        std::vector<const Entity*> members;
        interface.names.forEach([&](Symbol, const Entity& member) {
            if (member.isPublic && member.owner == &interface && member.kind != EntityKind::Constant &&
                !isFriend(member))
                members.push_back(&member);
        });
        std::sort(members.begin(), members.end(), [](const Entity* a, const Entity* b) { return a->pos < b->pos; });
        for (const auto* member : members) {
            const Entity* own = ownMember(prefix, member->name);
            if (!own || (own->kind != EntityKind::Procedure && own->kind != EntityKind::Property))
                return missing(interface, *member);
            const bool isProcedure = member->kind == EntityKind::Procedure;
            if (isProcedure != (own->kind == EntityKind::Procedure)) {
                module_.diagnostics.report(Message::HandlerMismatch, own->pos, nameAt(module_.tree.source, own->pos));
                continue;
            }
            const Callable ofVariable{{}, member->type};
            const auto wanted = callablesOf(*member, ofVariable);
            const bool isWhole = implements(interface, *member, own->get, wanted.get, false) &&
                                 implements(interface, *member, own->let, wanted.let, true) &&
                                 implements(interface, *member, own->set, wanted.set, true);
            if (!isWhole) return;
        }
    }

    /// Returns false if the procedure is missing.
    bool implements(const Scope& interface, const Entity& member, const Callable* own, const Callable* wanted,
                    bool assigns) {
        if (!wanted) return true;
        if (!own || !own->body) {
            missing(interface, member);
            return false;
        }
        const auto pos = own->body->signature.namePos;
        if (!isCalledAlike(*own, *wanted, assigns))
            module_.diagnostics.report(Message::HandlerMismatch, pos, nameAt(module_.tree.source, pos));
        return true;
    }

    void missing(const Scope& interface, const Entity& member) {
        Pos pos = 0;
        for (const auto* decl = module_.tree.declarations; decl; decl = decl->next)
            if (decl->kind == DeclKind::Implements && as<ImplementsDecl>(*decl).type->name == interface.name)
                pos = as<ImplementsDecl>(*decl).type->pos;
        module_.diagnostics.report(Message::InterfaceMemberMissing, pos, program_.symbols.spelling(member.name));
    }

    // object_Event: a handler must have the parameters of its event.
    void handler(const Entity& entity) {
        const auto spelling = program_.symbols.spelling(entity.name);
        const auto underline = spelling.rfind('_');
        if (underline == spelling.npos || underline == 0) return;
        const Entity* object = eventReceiver(program_, scope_, spelling.substr(0, underline));
        if (!object) return;
        const Scope& source = program_.scope(object->type.id);
        const Entity* event = eventOf(source, program_.symbols.intern(spelling.substr(underline + 1)));
        if (!event) {
            if (!source.open && source.kind == ScopeKind::LibraryClass)
                module_.diagnostics.report(Message::HandlerOfUnknownEvent, entity.pos,
                                           nameAt(module_.tree.source, entity.pos));
            return;
        }
        const auto& given = entity.get->parameters;
        const bool hasIndex = given.size() == event->get->parameters.size() + 1;
        if (!hasIndex && !sameParameters(given, event->get->parameters))
            module_.diagnostics.report(Message::HandlerMismatch, entity.pos, nameAt(module_.tree.source, entity.pos));
    }

    // Classes have no public constants, arrays, texts of a fixed length or Declares.
    void publicMembers() {
        for (const auto& [entity, decl] : module_.constants)
            if (entity->isPublic && !entity->type.isEnum) refuse(entity->pos);
        for (const auto& [entity, decl] : module_.variables)
            if (entity->isPublic && (decl->isArray || entity->type.value == ValueType::FixedString))
                refuse(entity->pos);
        for (const auto& [entity, decl] : module_.callables)
            if (entity->isPublic && decl->kind == DeclKind::Declare && decl->visibility != Visibility::Private)
                refuse(entity->pos);
    }

    // Others could not name the private types of a class.
    void privateTypes() {
        for (const auto& [entity, decl] : module_.variables)
            if (entity->isPublic && isPrivate(entity->type)) expose(decl->pos);
        for (const auto& [entity, decl] : module_.callables) {
            if (decl->kind != DeclKind::Procedure || decl->visibility == Visibility::Private ||
                decl->visibility == Visibility::Friend)
                continue;
            const auto& procedure = as<ProcedureDecl>(*decl);
            const bool exposes = procedure.signature.kind == ProcedureKind::PropertyLet   ? exposing(entity->let)
                                 : procedure.signature.kind == ProcedureKind::PropertySet ? exposing(entity->set)
                                                                                          : exposing(entity->get);
            if (exposes) expose(procedure.signature.namePos);
        }
    }

    bool isPrivate(const Type& type) const {
        const bool isNamed = type.value == ValueType::Record || type.isEnum;
        return isNamed && program_.scope(type.id).isPrivate;
    }

    bool exposing(const Callable* callable) const {
        if (!callable) return false;
        return isPrivate(callable->result) ||
               std::any_of(callable->parameters.begin(), callable->parameters.end(),
                           [&](const ParameterInfo& parameter) { return isPrivate(parameter.type); });
    }

    void expose(Pos pos) { module_.diagnostics.report(Message::PrivateTypeExposed, pos); }

    void refuse(Pos pos) {
        module_.diagnostics.report(Message::PublicMemberNotAllowed, pos, nameAt(module_.tree.source, pos));
    }

    Program& program_;
    SourceModule& module_;
    Scope& scope_;
    RecordSizes& sizes_;
};

} // namespace

void checkDeclarations(Program& program, SourceModule& module, RecordSizes& sizes) {
    DeclarationChecks{program, module, sizes}.check();
}

} // namespace qltoolkit
