#include "Components/QLToolkit/names/form_controls.h"
#include "Basic/case_folding.h"
#include "Components/QLToolkit/names/lacks.h"
#include "Components/QLToolkit/names/lookup.h"
#include "Components/QLToolkit/parser/header_places.h"

namespace qltoolkit {

namespace {

/// East Asian versions of the language write it for controls that have an input method.
constexpr std::string_view kOfEastAsia = "IMEMode";

/// The class of a control: "TavletsCtl.QLLabel" is the class QLLabel of the library Tavlets.
class ControlClasses {
public:
    ControlClasses(Program& program, SourceModule& module) : program_(program), module_(module) {}

    const Entity* find(std::string_view className, bool& libraryIsKnown) {
        const auto dot = className.find('.');
        const auto name = className.substr(dot + 1);
        auto library = className.substr(0, dot == className.npos ? 0 : dot);
        libraryIsKnown = false;
        if (library.empty()) return nullptr;
        const Entity* known = program_.topNames.find(program_.symbols.intern(library));
        if (!known && library.ends_with("Ctl"))
            known = program_.topNames.find(program_.symbols.intern(library.substr(0, library.size() - 3)));
        if (!known) return nullptr;
        libraryIsKnown = known->kind == EntityKind::Library || !program_.isIncomplete;
        return findType(program_, *module_.scope, known->name, program_.symbols.intern(name));
    }

private:
    Program& program_;
    SourceModule& module_;
};

class FormControls {
public:
    FormControls(Program& program, SourceModule& module)
        : program_(program), module_(module), classes_(program, module) {}

    void declare() {
        bool known = false;
        const Entity* form = classes_.find(module_.form->className, known);
        if (form && form->inner && form->inner != module_.scope) {
            module_.scope->base = form->inner;
        } else {
            module_.scope->open = true;
        }
        for (const auto& child : module_.form->children) declare(child);
    }

private:
    void declare(const image::Control& control) {
        add(control);
        for (const auto& child : control.children) declare(child);
    }

    void add(const image::Control& control) {
        const Symbol name = program_.symbols.intern(control.name);
        if (Entity* same = module_.scope->names.find(name)) {
            if (same->kind == EntityKind::Control) same->type.isArray = true;
            return;
        }
        Entity& entity = program_.newEntity(EntityKind::Control, name);
        entity.isPublic = true;
        entity.owner = module_.scope;
        entity.type = classOf(control);
        checkProperties(control, entity.type);
        entity.type.isArray = control.index != image::Control::kNoIndex;
        module_.scope->names.add(name, &entity);
    }

    void checkProperties(const image::Control& control, const Type& type) {
        if (type.value != ValueType::Object || type.id == 0) return;
        const Scope& scope = program_.scope(type.id);
        if (scope.kind != ScopeKind::LibraryClass || scope.open) return;
        for (const auto& property : control.properties) {
            const auto& name = property.name.str();
            if (name.starts_with('_') || name.find('.') != name.npos || name == kOfEastAsia) continue;
            const Symbol symbol = program_.symbols.intern(name);
            if (scope.find(symbol) || isOfContainer(symbol)) continue;
            module_.diagnostics.report(Message::PropertyUnknown,
                                       placeInHeader(module_.tree.source, control.name.str(), name), name);
        }
    }

    /// A form gives each of its controls a name, a place and the like.
    bool isOfContainer(Symbol property) {
        const Entity* any =
            findType(program_, *module_.scope, program_.symbols.intern("VB"), program_.symbols.intern("Control"));
        return any && any->inner->find(property);
    }

    Type classOf(const image::Control& control) {
        bool libraryIsKnown = false;
        if (const Entity* found = classes_.find(control.className, libraryIsKnown)) {
            if (program_.warnsOfDevices && !found->onDevices)
                reportLack(program_, module_.diagnostics, Lack::Control, *found,
                           placeInHeader(module_.tree.source, control.name.str()), control.className.str());
            return found->type;
        }
        if (libraryIsKnown)
            module_.diagnostics.report(Message::ControlClassUnknown,
                                       placeInHeader(module_.tree.source, control.name.str()), control.className.str());
        return {ValueType::Unknown};
    }

    Program& program_;
    SourceModule& module_;
    ControlClasses classes_;
};

} // namespace

void declareControls(Program& program, SourceModule& module) {
    if (module.form) FormControls{program, module}.declare();
}

} // namespace qltoolkit
