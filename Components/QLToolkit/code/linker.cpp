#include "Components/QLToolkit/code/linker.h"
#include "Basic/case_folding.h"
#include "Components/Image/code/instruction.h"

namespace qltoolkit {

Linker::Linker(const ProgramLayout& layout, std::size_t words)
    : layout_(layout), constants_(const_cast<Program&>(layout.program())), staticSlots_(layout.globalSlots()) {
    image_.records = layout.records();
    image_.arrays = layout.arrays();
    image_.globals = layout.globals();
    image_.procedures.resize(layout.procedures());
    image_.code.reserve(words);
}

std::uint32_t Linker::text(std::string_view text) {
    const auto [at, isNew] = texts_.try_emplace(std::string(text), static_cast<std::uint32_t>(image_.texts.size()));
    if (isNew) image_.texts.emplace_back(text);
    return at->second;
}

void Linker::add(const SourceModule& module, ModuleCode& code, std::uint32_t prepare) {
    const auto number = static_cast<std::uint32_t>(image_.modules.size());
    std::vector<std::uint32_t> texts;
    for (const auto& each : code.texts) texts.push_back(text(each));
    addCode(code, texts, number);
    if (!module.scope->isClass()) {
        image_.globals.insert(image_.globals.end(), code.statics.begin(), code.statics.end());
        staticSlots_ += code.staticSlots;
    }
    const auto& file = module.tree.source.name();
    image_.modules.push_back({text(spelling(module.scope->name)), text(file.substr(file.find_last_of("/\\") + 1)),
                              module.scope->isClass() ? image::kNone : prepare});
    if (module.scope->isClass()) addClass(module, code, number, prepare);
}

void Linker::addCode(ModuleCode& code, const std::vector<std::uint32_t>& texts, std::uint32_t module) {
    std::vector<std::uint32_t> imports;
    for (auto& each : code.imports) {
        image::Import made = each;
        made.name = texts[each.name];
        std::vector<std::uint32_t> key{made.name, image::pack(made.result)};
        for (const auto& type : made.parameters) key.push_back(image::pack(type));
        const auto [at, isNew] =
            imports_.try_emplace(std::move(key), static_cast<std::uint32_t>(image_.imports.size()));
        if (isNew) image_.imports.push_back(std::move(made));
        imports.push_back(at->second);
    }
    const auto arrays = static_cast<std::uint32_t>(image_.arrays.size());
    for (const auto& fix : code.fixes) {
        auto& word = code.code[fix.word];
        switch (fix.kind) {
        case FixKind::Text: word = texts[word]; break;
        case FixKind::Import: word = imports[word]; break;
        case FixKind::Array: word += arrays; break;
        case FixKind::Static: word += staticSlots_; break;
        }
    }
    image_.arrays.insert(image_.arrays.end(), code.arrays.begin(), code.arrays.end());
    const auto numbers = static_cast<std::uint32_t>(image_.numbers.size());
    image_.numbers.insert(image_.numbers.end(), code.numbers.begin(), code.numbers.end());
    for (auto& [number, procedure] : code.procedures) procedure.numbers += numbers;
    addProcedures(code, texts, module);
}

/// Procedures were made in the order of their numbers, but for those that prepare a module.
void Linker::addProcedures(ModuleCode& code, const std::vector<std::uint32_t>& texts, std::uint32_t module) {
    for (auto& [number, procedure] : code.procedures) {
        auto& words = layout_.isPrepare(number) ? prepares_ : image_.code;
        const auto* begin = code.code.data() + procedure.code;
        procedure.code = static_cast<std::uint32_t>(words.size());
        words.insert(words.end(), begin, begin + procedure.words);
        procedure.module = module;
        if (procedure.name != image::kNone) procedure.name = texts[procedure.name];
        image_.procedures[number] = std::move(procedure);
    }
}

image::CodeImage Linker::finish() {
    const auto ordinary = static_cast<std::uint32_t>(image_.code.size());
    for (std::uint32_t number = 0; number < image_.procedures.size(); ++number)
        if (layout_.isPrepare(number)) image_.procedures[number].code += ordinary;
    image_.code.insert(image_.code.end(), prepares_.begin(), prepares_.end());
    return std::move(image_);
}

std::uint32_t Linker::procedureNamed(const SourceModule& module, std::string_view name) const {
    for (const auto& [entity, decl] : module.callables)
        if (decl->kind == DeclKind::Procedure && entity->get && entity->get->body == decl &&
            basic::equalNoCase(spelling(entity->name), name))
            return entity->get->number;
    return image::kNone;
}

/// The procedure Interface_Member of a class.
std::uint32_t Linker::implementationOf(const SourceModule& module, const Scope& interface, const Entity& wanted,
                                       ProcedureKind kind) const {
    if (!wanted.isPublic) return image::kNone;
    const auto name = std::string(spelling(interface.name)) + "_" + std::string(spelling(wanted.name));
    for (const auto& [own, other] : module.callables) {
        if (other->kind != DeclKind::Procedure || !basic::equalNoCase(spelling(own->name), name)) continue;
        if (as<ProcedureDecl>(*other).signature.kind != kind) continue;
        for (const auto* callable : {own->get, own->let, own->set})
            if (callable && callable->body == other) return callable->number;
    }
    return image::kNone;
}

/// For each member of the interface, in their order.
void Linker::addImplementations(image::ClassInfo& made, const SourceModule& module) {
    for (const auto* interface : module.scope->interfaces) {
        if (!interface->source) continue;
        image::Implementation implementation{layout_.classOf(interface->number), {}};
        for (const auto& [wanted, decl] : interface->source->callables)
            if (decl->kind == DeclKind::Procedure)
                implementation.procedures.push_back(
                    implementationOf(module, *interface, *wanted, as<ProcedureDecl>(*decl).signature.kind));
        for (const auto& [field, decl] : interface->source->variables) {
            const auto* access = layout_.accessTo(*field);
            if (!access) continue;
            const auto& property = access->property;
            const auto add = [&, interface = interface](ProcedureKind kind) {
                implementation.procedures.push_back(implementationOf(module, *interface, property, kind));
            };
            add(ProcedureKind::PropertyGet);
            implementation.procedures.push_back(image::kNone); // the field
            if (property.let) add(ProcedureKind::PropertyLet);
            if (property.set) add(ProcedureKind::PropertySet);
        }
        made.implementations.push_back(std::move(implementation));
    }
}

void Linker::addEvents(image::ClassInfo& made, const SourceModule& module) {
    for (const auto& [entity, decl] : module.callables) {
        if (decl->kind != DeclKind::Event) continue;
        image::EventSignature event{text(spelling(entity->name)), {}};
        for (const auto& parameter : entity->get->parameters)
            event.parameters.push_back(parameter.byVal ? layout_.slotTypeOf(parameter.type)
                                                       : layout_.referenceTo(parameter.type));
        made.events.push_back(std::move(event));
    }
    for (const auto& [field, decl] : module.variables) {
        if (!field->withEvents || field->type.value != ValueType::Object || layout_.classOf(field->type.id) == 0)
            continue;
        const auto* source = layout_.program().scope(field->type.id).source;
        image::EventSink sink{field->place, layout_.classOf(field->type.id), {}};
        std::uint32_t number = 0;
        for (const auto& [event, eventDecl] : source->callables) {
            if (eventDecl->kind != DeclKind::Event) continue;
            const auto handler =
                procedureNamed(module, std::string(spelling(field->name)) + "_" + std::string(spelling(event->name)));
            if (handler != image::kNone) sink.handlers.push_back({number, handler});
            ++number;
        }
        made.sinks.push_back(std::move(sink));
    }
}

void Linker::addClass(const SourceModule& module, const ModuleCode& code, std::uint32_t number, std::uint32_t prepare) {
    const Scope& scope = *module.scope;
    image::ClassInfo made;
    made.name = text(spelling(scope.name));
    made.module = number;
    for (const auto& [entity, decl] : module.variables)
        made.fields.push_back({entity->type.value == ValueType::Record && !entity->type.isArray
                                   ? layout_.typeOf(entity->type)
                                   : layout_.slotTypeOf(entity->type),
                               false});
    made.fields.insert(made.fields.end(), code.statics.begin(), code.statics.end());
    addMembers(made, module);
    addImplementations(made, module);
    addEvents(made, module);
    made.prepare = prepare;
    made.initialize = procedureNamed(module, "Class_Initialize");
    made.terminate = procedureNamed(module, "Class_Terminate");
    if (const auto* member = scope.findDefault(); member && member->owner == &scope)
        made.defaultMember = text(spelling(member->name));
    if (const auto* member = scope.findEnumerator(); member && member->get) made.enumerator = member->get->number;
    if (scope.predeclared) made.predeclared = layout_.predeclared(scope.number);
    image_.classes.push_back(std::move(made));
}

} // namespace qltoolkit
