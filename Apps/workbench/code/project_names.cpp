#include "Apps/workbench/code/project_names.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/code/code_text.h"
#include "Basic/runtime_error.h"

namespace workbench {

namespace {

template <class Map>
void forget(Map& map, const ProjectNames::Component& component) {
    std::erase_if(map,
                  [&](const auto& entry) { return entry.first.expired() || entry.first.lock() == component.shared(); });
}

Spellings readControls(vbide::VBComponent& component) {
    Spellings names;
    (void)basic::attempt([&] { // a form may have no description
        const auto designer = component.Designer();
        if (!designer) return;
        for (const auto& control : designer->VBControls()->items()) {
            const auto name = qt(fernwick::asText(control->Properties()->Item("Name")->Value()));
            names.insert(name.toLower(), name);
        }
    });
    return names;
}

} // namespace

ProjectNames::ProjectNames(host::Host& host) {
    watches_.push_back(host.panes.codeChanged.connect([this](const auto& component) { forget(names_, component); }));
    watches_.push_back(
        host.panes.designChanged.connect([this](const auto& component) { forget(controls_, component); }));
}

const DeclaredNames& ProjectNames::of(const Component& component) {
    const auto known = names_.find(component.shared());
    if (known != names_.end()) return known->second;
    const auto lines = codeOf(*component->CodeModule()).split('\n');
    return names_.emplace(component.shared(), declaredNames(lines)).first->second;
}

const Spellings& ProjectNames::controlsOf(const Component& component) {
    const auto known = controls_.find(component.shared());
    if (known != controls_.end()) return known->second;
    return controls_.emplace(component.shared(), readControls(*component.shared())).first->second;
}

ProjectNames::Lookup ProjectNames::at(const Component& component, int line) {
    return [this, component, line](const QString& name, const QString& object) {
        return object.isEmpty() ? unqualified(component, line, name.toLower())
                                : member(component, name.toLower(), object);
    };
}

QString ProjectNames::unqualified(const Component& component, int line, const QString& lower) {
    const auto& own = of(component);
    for (const auto& procedure : own.procedures)
        if (procedure.first <= line && line <= procedure.last && procedure.names.contains(lower))
            return procedure.names.value(lower);
    if (own.own.contains(lower)) return own.own.value(lower);
    if (controlsOf(component).contains(lower)) return controlsOf(component).value(lower);
    for (const auto& other : component->Collection()->items()) {
        const auto name = qt(other->Name());
        if (name.toLower() == lower) return name;
        if (const auto& shared = of(other).shared; shared.contains(lower)) return shared.value(lower);
    }
    return {};
}

QString ProjectNames::member(const Component& component, const QString& lower, const QString& object) {
    const bool isOwn = object.compare("Me", Qt::CaseInsensitive) == 0;
    for (const auto& owner : component->Collection()->items()) {
        const bool isOwner = isOwn ? owner == component : object.compare(qt(owner->Name()), Qt::CaseInsensitive) == 0;
        if (!isOwner) continue;
        const auto name = of(owner).shared.value(lower);
        return name.isEmpty() ? controlsOf(owner).value(lower) : name;
    }
    return {};
}

} // namespace workbench
